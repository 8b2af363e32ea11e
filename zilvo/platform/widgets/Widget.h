#pragma once

#include "zilvo/platform/painting/Painter.h"
#include "zilvo/platform/values/Members.h"
#include "zilvo/platform/values/Units.h"
#include "zilvo/platform/widgets/Delegate.h"

#include <chrono>

namespace zilvo::platform {

class CommandButton;
class OptionButton;
class SSOption;
class SSRibbon;
class Surface;
class Widget;

/// A field of a design table that every child must state.
template <class T>
struct Stated {
    constexpr Stated(T given) noexcept : value(given) {}
    constexpr operator T() const noexcept { return value; }
    T value;
};
using Name = Stated<const char16_t*>;
using Twips = Stated<Single>;

/// The index of a widget that belongs to no control array.
inline constexpr Integer NoIndex = -1;

/// What every kind of widget has in its design table.
struct Placement {
    const char16_t* name;
    Integer index;
    Rectangle bounds; ///< twips, in the container
    Integer tabIndex;
    const char16_t* toolTipText;
    Integer zOrder;
    bool enabled;
    bool visible;
    const char16_t* spoken; ///< what it is called aloud where it shows no text
};

/// Reads the placement off a kind's design table; what the kind's table does not have gets its usual value.
template <class Design>
constexpr Placement placementOf(const Design& design) noexcept {
    Placement place{design.Name, NoIndex, {}, 0, u"", 0, true, true, u""};
    if constexpr (requires { design.Index; }) place.index = design.Index;
    if constexpr (requires { design.Left; }) place.bounds = {design.Left, design.Top, design.Width, design.Height};
    if constexpr (requires { design.TabIndex; }) place.tabIndex = design.TabIndex;
    if constexpr (requires { design.ToolTipText; }) place.toolTipText = design.ToolTipText;
    if constexpr (requires { design.ZOrder; }) place.zOrder = design.ZOrder;
    if constexpr (requires { design.Enabled; }) place.enabled = design.Enabled;
    if constexpr (requires { design.Visible; }) place.visible = design.Visible;
    if constexpr (requires { design.Spoken; }) place.spoken = design.Spoken;
    return place;
}

/// What widgets lie in: the control's surface, or a 3-D panel or frame on it.
class Container {
public:
    Container(const Container&) = delete;
    Container& operator=(const Container&) = delete;

    virtual Surface& surface() noexcept = 0;
    /// The container as a widget of the surface; null for the surface itself.
    virtual Widget* asWidget() noexcept = 0;
    /// The unit in which code places the children.
    virtual ScaleMode childScale() const noexcept = 0;

    /// The exclusive groups among the children: which one is selected or pressed, null for none.
    OptionButton* selectedOption = nullptr;
    SSOption* selectedSSOption = nullptr;
    SSRibbon* pressedRibbon = nullptr;

protected:
    Container() = default;
    ~Container() = default;
};

enum class Direction : std::uint8_t { Up, Down, Left, Right };

/// In which respect a widget has changed; Look is any other that is seen.
enum class Aspect : std::uint8_t { Value, Caption, Enabled, Visible, Place, Focus, Pressed, ToolTip, Default, Look };

/// What kind of thing a widget is to those who do not see it. None is what only decorates, or only holds others.
enum class Role : std::uint8_t {
    None,
    Label,
    Picture,
    PushButton,
    PictureButton, ///< a picture that is clicked
    ToggleButton,  ///< latches
    CheckBox,
    RadioButton,
    SpinButton,
    Group,
    Menu,
    MenuItem,
    Separator
};

/// Whether what can be ticked, selected or latched is.
enum class Checked : std::uint8_t { No, Yes, Mixed };

/// What all kinds of child widget share: a name, a place, whether it is shown and takes input. A widget lives
/// exactly as long as its control; the surface is not used while its widgets are destroyed.
class Widget : public Described {
public:
    Widget(Container& container, const Placement& place);
    Widget(const Widget&) = delete;
    Widget& operator=(const Widget&) = delete;
    virtual ~Widget() = default;

    StringView name() const noexcept { return name_; }
    bool isArrayElement() const noexcept { return index_ != NoIndex; }
    Integer index() const noexcept { return index_; }
    Container& container() const noexcept { return container_; }
    Surface& surface() const noexcept { return container_.surface(); }
    /// The widget that this one belongs to: its container, a menu's parent menu; null directly on the surface.
    virtual Widget* parent() const noexcept { return container_.asWidget(); }
    /// Its parent or, on the surface of an embedded control, the widget that embeds it; null on the host's own surface.
    Widget* outer() const noexcept;
    /// The surface of the control that this widget embeds; null for all other kinds.
    virtual Surface* embeddedSurface() noexcept { return nullptr; }
    /// The embedded control's own members; null for all other kinds.
    virtual Described* embeddedMembers() noexcept { return nullptr; }
    /// The surface's control has changed what that embedded one sees as its ambient property.
    virtual void ambientChanged(StringView /*name*/) {}
    /// In the order of creation.
    Widget* nextOnSurface() const noexcept { return nextOnSurface_; }
    /// Among the widgets of one container the higher is in front, then the one created later.
    Long zOrder() const noexcept { return zOrder_; }
    /// Twips, in the container.
    const Rectangle& bounds() const noexcept { return bounds_; }
    /// False for what is not laid out on the surface (menus).
    virtual bool isPlaced() const noexcept { return true; }

    // Members. Positions and sizes are in the unit of the container.
    String get_Name() const { return String(name_); }
    /// Fails with UnknownMember for a widget that belongs to no control array.
    Integer get_Index() const;
    Single get_Left() const noexcept { return bounds_.left / unit(); }
    void put_Left(Single newLeft);
    Single get_Top() const noexcept { return bounds_.top / unit(); }
    void put_Top(Single newTop);
    Single get_Width() const noexcept { return bounds_.width / unit(); }
    /// A negative size fails with InvalidPropertyValue.
    void put_Width(Single newWidth);
    Single get_Height() const noexcept { return bounds_.height / unit(); }
    void put_Height(Single newHeight);
    bool get_Visible() const noexcept { return visible_; }
    void put_Visible(bool newVisible) {
        if (newVisible != visible_) show(newVisible);
    }
    bool get_Enabled() const noexcept { return enabled_; }
    void put_Enabled(bool newEnabled) {
        if (newEnabled != enabled_) enable(newEnabled);
    }
    String get_ToolTipText() const { return String(toolTipText_.view()); }
    void put_ToolTipText(StringView newToolTipText);
    /// Before all others of its container.
    void bringToFront() noexcept;
    Integer get_TabIndex() const noexcept { return tabIndex_; }
    void put_TabIndex(Integer newTabIndex);

    // For those who do not see it.

    virtual Role role() const noexcept = 0;
    /// The text that can be seen on it, as designed: "&" before a letter makes it the access key. Empty for none.
    virtual StringView shownText() const noexcept { return {}; }
    /// What its control calls it where it shows no text; empty when the control does not say.
    StringView spokenText() const noexcept { return spoken_; }
    /// Nothing for what cannot be checked.
    virtual std::optional<Checked> checked() const noexcept { return std::nullopt; }

    // Input, for the input router only.

    /// Whether the user can act on it: shown and enabled, and so is everything that it lies in.
    bool acceptsInput() const;
    /// Whether a pointer press can land on it; what cannot be hit lets the press through.
    virtual bool isHit() const noexcept { return true; }
    virtual bool takesFocus() const noexcept { return false; }
    /// Whether Tab stops here; an exclusive group has one stop.
    virtual bool isTabStop() const { return takesFocus(); }
    /// The letter that, typed with Alt, acts on it; 0 for none.
    virtual char16_t accessKey() const noexcept { return 0; }
    /// Whether a user's click on it reaches anybody.
    virtual bool isClickable() const noexcept { return false; }
    /// What the user's click, Space and the access key do.
    virtual void userClick() {}
    /// A press of any pointer button. `at` is in twips from the widget's corner.
    virtual void pointerDown(Integer /*button*/, Integer /*shift*/, Point /*at*/) {}
    virtual void pointerUp() {}
    /// Time that passed on the host's clock while the left button was held down on it.
    virtual void held(std::chrono::milliseconds /*elapsed*/) {}
    /// How long until held() does something; nothing when time is nothing to it.
    virtual std::optional<std::chrono::milliseconds> untilHeld() const noexcept { return std::nullopt; }
    /// An arrow key; false when the kind has no use for it.
    virtual bool arrowKey(Direction /*direction*/) { return false; }
    /// Whether arrow keys move among its like in the container.
    virtual bool isInGroupWith(const Widget& /*other*/) const noexcept { return false; }
    /// The keyboard goes from one widget to another; either may be null.
    static void moveFocus(Widget* from, Widget* to) noexcept;
    void setPressed(bool pressed) noexcept;
    /// One that was disabled or hidden from code no longer shows the focus; the keyboard goes on with the next input.
    bool isFocused() const { return focused_ && acceptsInput(); }
    bool isPressed() const noexcept { return pressed_; }

    /// Draws the widget into the area that it paints, without its children. Never changes state.
    virtual void paint(Painter& painter) const = 0;
    /// What of it is drawn over its children.
    virtual void paintEdge(Painter& /*painter*/) const {}
    /// The area that it paints, in the container; nothing of it is seen outside.
    virtual Rectangle paintedBounds() const noexcept { return bounds_.onWholePixels(); }

protected:
    /// Its place as it is drawn, from its own corner: edges lie on whole pixels.
    Rectangle drawnArea() const noexcept {
        const Rectangle drawn = bounds_.onWholePixels();
        return {0, 0, drawn.width, drawn.height};
    }
    /// Whether it is drawn as one that takes no input: itself disabled, or the control as a whole.
    bool isGreyed() const;
    /// Tells the host, for whom the view is out of date.
    void changed(Aspect aspect) const noexcept;
    /// For a widget whose inside follows its size: runs after its width or height was set.
    virtual void sizeChanged() {}
    /// Whether none of its group that takes input comes before it in Tab order.
    bool leadsGroup() const;
    /// Takes on the size that the inside has given itself; twips.
    void followSize(Single width, Single height) noexcept;
    static const ClassDescription commonMembers;

private:
    Single unit() const noexcept { return twipsPerUnit(container_.childScale()); }
    void place(Single Rectangle::*edge, Single value);
    void show(bool newVisible);
    void enable(bool newEnabled);

    Container& container_;
    Widget* nextOnSurface_ = nullptr;
    const char16_t* name_;
    const char16_t* spoken_;
    Rectangle bounds_;
    Text toolTipText_;
    Integer index_;
    Integer tabIndex_;
    Long zOrder_;
    bool visible_;
    bool enabled_;
    bool focused_ = false;
    bool pressed_ = false;

    friend class Surface;
};

/// "cmdOK" or "optDeckCount(4)".
std::string shownName(const Widget& widget);
/// The message prefix for a failing widget member: "cmdOK.Width" or "optDeckCount(4).Width".
std::string describe(const Widget& widget, const char* member);

} // namespace zilvo::platform
