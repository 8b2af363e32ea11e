#pragma once

#include "zilvo/platform/widgets/WidgetFont.h"

namespace zilvo::platform {

/// What the kinds with a caption have in their design tables.
struct Appearance {
    const char16_t* caption;
    FontDesign font;
    Colour backColor;
    Colour foreColor;
};

template <class Design>
constexpr Appearance appearanceOf(const Design& design) noexcept {
    Appearance appearance{design.Caption, design.Font, design.BackColor, colours::ButtonText};
    if constexpr (requires { design.ForeColor; }) appearance.foreColor = design.ForeColor;
    return appearance;
}

/// A widget that shows a caption in a font of its own. "&" before a letter makes it the access key.
class CaptionedWidget : public Widget {
public:
    String get_Caption() const { return String(caption_.view()); }
    void put_Caption(StringView newCaption);
    Colour get_BackColor() const noexcept { return backColor_; }
    void put_BackColor(Colour newBackColor);
    Colour get_ForeColor() const noexcept { return foreColor_; }
    void put_ForeColor(Colour newForeColor);
    const FontRef& get_Font() { return font_.object(); }
    void put_Font(FontRef newFont) { font_.share(std::move(newFont)); }

    StringView shownText() const noexcept override { return caption(); }

protected:
    CaptionedWidget(Container& container, const Placement& place, const Appearance& appearance);

    StringView caption() const noexcept { return caption_.view(); }
    FontLook font() const noexcept { return font_.look(); }
    static const ClassDescription captionedMembers;

private:
    Text caption_;
    WidgetFont font_;
    Colour backColor_;
    Colour foreColor_;
};

} // namespace zilvo::platform
