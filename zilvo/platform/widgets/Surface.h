#pragma once

#include "zilvo/platform/widgets/Widget.h"

#include <iterator>
#include <vector>

namespace zilvo::platform {

/// What a point of the surface belongs to.
struct Hit {
    Surface* surface = nullptr; ///< the innermost: the control's own, or that of an embedded control
    Widget* widget = nullptr;   ///< null where the surface itself shows
    Point at;                   ///< twips from the corner of the widget, or of the surface
};

/// The inner surface of one control: its size, its colours and its widgets.
class Surface : public Container {
public:
    /// Goes through the widgets in the order of their creation.
    class Iterator {
    public:
        using iterator_category = std::forward_iterator_tag;
        using value_type = Widget;
        using difference_type = std::ptrdiff_t;
        using pointer = Widget*;
        using reference = Widget&;

        Iterator() = default;
        explicit Iterator(Widget* widget) noexcept : widget_(widget) {}
        Widget& operator*() const noexcept { return *widget_; }
        Widget* operator->() const noexcept { return widget_; }
        Iterator& operator++() noexcept {
            widget_ = widget_->nextOnSurface();
            return *this;
        }
        Iterator operator++(int) noexcept { return std::exchange(*this, Iterator(widget_->nextOnSurface())); }
        friend bool operator==(Iterator, Iterator) noexcept = default;

    private:
        Widget* widget_ = nullptr;
    };
    Iterator begin() const noexcept { return Iterator(first_); }
    Iterator end() const noexcept { return {}; }

    Surface& surface() noexcept final { return *this; }
    Widget* asWidget() noexcept final { return nullptr; }

    /// The widget by that name (compared without case); `index` chooses an element of a control array. Null when
    /// there is none.
    Widget* find(StringView name, Integer index = NoIndex) const noexcept;

    /// Those that are laid out on it, by tab index, then in the order of creation.
    std::vector<Widget*> inTabOrder() const;

    /// Its size, colours and inner size.
    virtual Described& members() noexcept = 0;
    /// Twips.
    virtual Rectangle area() const noexcept = 0;
    virtual Colour backColor() const noexcept = 0;
    virtual Colour foreColor() const noexcept = 0;
    /// Keep the control alive between them: whatever the host is told may make it let go of the control.
    virtual void hold() noexcept = 0;
    virtual void letGo() noexcept = 0;
    /// Whether the user can reach the surface at all. Fails as the host does.
    virtual bool acceptsInput() const = 0;
    /// Whether the control as a whole is drawn as one that takes input. Fails as the host does.
    virtual bool isEnabled() const { return true; }
    /// Whether the control's default button is the window's now. Fails as the host does.
    virtual bool displaysDefault() const { return true; }
    virtual void viewChanged() noexcept = 0;
    /// One of its widgets, or of those of a control embedded in it, has changed in that respect.
    virtual void widgetChanged(const Widget& widget, Aspect aspect) noexcept = 0;
    /// Tab goes past the last widget, or back past the first: true when the host takes the keyboard on.
    virtual bool leaveFocus(bool /*forward*/) { return false; }
    /// The widget that embeds the surface's control in another control; null for a control that a host drives.
    virtual Widget* embeddingWidget() const noexcept { return nullptr; }

    /// The control's own handlers, for the input router. A pointer press where no widget is; `at` in twips.
    virtual void surfaceMouseDown(Integer button, Integer shift, Point at) = 0;
    /// A typed character, before any widget sees it. True when the control acted on it: it goes no further.
    virtual bool surfaceKeyPress(Integer& keyAscii) = 0;

    /// Front to back; hidden widgets are passed over, disabled ones are hit. `at` in twips.
    Hit hitTest(Point at);
    void paint(Painter& painter);

    /// The push buttons that Enter and Escape press; null for none.
    CommandButton* defaultButton = nullptr;
    CommandButton* cancelButton = nullptr;

protected:
    Surface() = default;
    ~Surface() = default;

private:
    friend class Widget;
    void add(Widget& widget) noexcept;
    void paintChildren(Painter& painter, const Container& container);

    Widget* first_ = nullptr;
    Widget* last_ = nullptr;
};

/// Keeps the control of a surface, and all its widgets, alive for a scope.
class HeldSurface {
public:
    explicit HeldSurface(Surface& surface) noexcept : surface_(surface) { surface_.hold(); }
    HeldSurface(const HeldSurface&) = delete;
    HeldSurface& operator=(const HeldSurface&) = delete;
    ~HeldSurface() { surface_.letGo(); }

private:
    Surface& surface_;
};

} // namespace zilvo::platform
