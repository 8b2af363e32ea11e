#pragma once

#include "zilvo/framework/Platform.h"

namespace zilvo {

class Control;

/// The host-facing surface that each control owns: its size and colours, the host's ambient properties and extender,
/// and the notifications to the host. Without a site, default ambient properties answer and nothing is notified.
class UserControl final : public Surface, public Described {
public:
    /// Width and Height are twips; ScaleMode is the inner unit, in which children that lie directly on the surface
    /// are placed from code.
    struct Design {
        Twips Width, Height;
        Stated<platform::ScaleMode> ScaleMode;
        bool OwnWidth = false; ///< the control gives itself its width, whatever its host would have
        Colour BackColor = colours::ButtonFace;
        Colour ForeColor = colours::WindowText;
        FontDesign Font = {};
    };

    UserControl(Control& owner, const Design& design) noexcept;
    ~UserControl();

    Colour get_BackColor() const noexcept { return backColor_; }
    void put_BackColor(Colour newBackColor);
    Colour get_ForeColor() const noexcept { return foreColor_; }
    void put_ForeColor(Colour newForeColor);
    /// The control's default font, which is the ambient font of what it embeds.
    const FontRef& get_Font();
    /// Twips. Setting one tells the host and runs the control's Resize handler, also when the size is what it was; but
    /// not from inside that handler, where only another size does. A size that is negative or no number fails with
    /// InvalidPropertyValue.
    Single get_Width() const noexcept { return width_; }
    void put_Width(Single newWidth);
    Single get_Height() const noexcept { return height_; }
    void put_Height(Single newHeight);
    /// The inner size, in the inner unit.
    Single get_ScaleWidth() const noexcept { return width_ / twipsPerUnit(scaleMode_); }
    Single get_ScaleHeight() const noexcept { return height_ / twipsPerUnit(scaleMode_); }

    Ambient& get_Ambient();
    Extender& get_Extender();
    /// Shows a design-time menu at the pointer.
    void PopupMenu(Menu& root);
    void PropertyChanged(StringView name);
    void Beep();

    const ClassDescription& description() const noexcept override;

    // Surface
    ScaleMode childScale() const noexcept override { return scaleMode_; }
    Described& members() noexcept override { return *this; }
    Rectangle area() const noexcept override { return {0, 0, width_, height_}; }
    Colour backColor() const noexcept override { return backColor_; }
    Colour foreColor() const noexcept override { return foreColor_; }
    void hold() noexcept override;
    void letGo() noexcept override;
    bool acceptsInput() const override;
    bool isEnabled() const override;
    bool displaysDefault() const override;
    void viewChanged() noexcept override;
    void widgetChanged(const Widget& widget, Aspect aspect) noexcept override;
    bool leaveFocus(bool forward) override;
    Widget* embeddingWidget() const noexcept override;
    void surfaceMouseDown(Integer button, Integer shift, Point at) override;
    bool surfaceKeyPress(Integer& keyAscii) override;

    // For Control
    void setSite(ControlSite* site) noexcept { site_ = site; }
    bool ownsWidth() const noexcept { return ownWidth_; }
    /// The host's size, in twips; always runs the Resize handler.
    void setSize(Single width, Single height);
    /// Fails with InvalidPropertyValue for what is no size.
    static void checkSize(Single width, Single height);
    /// Runs the Resize handler.
    void resize();
    /// An ambient property of the controls embedded here has changed.
    void tellEmbedded(StringView ambientName);

private:
    class NullSite;

    ControlSite& site();
    void setOwnSize(Single width, Single height);
    void take(Single width, Single height);

    Control& owner_;
    ControlSite* site_ = nullptr;
    std::unique_ptr<NullSite> nullSite_;
    FontDesign fontDesign_;
    FontRef font_;
    Single width_;
    Single height_;
    Colour backColor_;
    Colour foreColor_;
    platform::ScaleMode scaleMode_;
    bool ownWidth_;
    bool resizing_ = false;
};

} // namespace zilvo
