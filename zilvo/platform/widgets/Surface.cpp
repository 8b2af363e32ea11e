#include "zilvo/platform/widgets/Surface.h"

#include <algorithm>

namespace zilvo::platform {

void Surface::add(Widget& widget) noexcept {
    (last_ ? last_->nextOnSurface_ : first_) = &widget;
    last_ = &widget;
}

Widget* Surface::find(StringView name, Integer index) const noexcept {
    for (Widget& widget : *this)
        if (widget.index() == index && sameName(widget.name(), name)) return &widget;
    return nullptr;
}

std::vector<Widget*> Surface::inTabOrder() const {
    std::vector<Widget*> widgets;
    for (Widget& widget : *this)
        if (widget.isPlaced()) widgets.push_back(&widget);
    std::stable_sort(widgets.begin(), widgets.end(), [](const Widget* one, const Widget* other) {
        return one->get_TabIndex() < other->get_TabIndex();
    });
    return widgets;
}

namespace {

/// The children of a widget: what lies in it when it is a container, the inner surface when it embeds a control.
Container* childrenOf(Widget& widget) noexcept {
    if (Surface* inner = widget.embeddedSurface()) return inner;
    return dynamic_cast<Container*>(&widget);
}

/// The front-most visible child of the container at that point of it; null for none.
Widget* childAt(const Surface& surface, const Container& container, Point at) noexcept {
    Widget* front = nullptr;
    for (Widget& child : surface) {
        if (&child.container() != &container || !child.isPlaced() || !child.get_Visible() || !child.isHit()) continue;
        if (child.bounds().contains(at) && (!front || child.zOrder() >= front->zOrder())) front = &child;
    }
    return front;
}

} // namespace

Hit Surface::hitTest(Point at) {
    if (!area().contains(at)) return {};
    Hit hit{this, nullptr, at};
    for (Container* container = this; container;) {
        Widget* child = childAt(container->surface(), *container, hit.at);
        if (!child) break;
        hit.at = {hit.at.x - child->bounds().left, hit.at.y - child->bounds().top};
        hit.widget = child;
        container = childrenOf(*child);
        if (Surface* inner = child->embeddedSurface()) hit = {inner, nullptr, hit.at};
    }
    return hit;
}

void Surface::paint(Painter& painter) {
    painter.rectangle(area(), {.fill = backColor(), .stroke = std::nullopt});
    paintChildren(painter, *this);
}

void Surface::paintChildren(Painter& painter, const Container& container) {
    std::vector<Widget*> backToFront;
    for (Widget& child : *this)
        if (&child.container() == &container && child.isPlaced() && child.get_Visible()) backToFront.push_back(&child);
    std::stable_sort(backToFront.begin(), backToFront.end(),
                     [](const Widget* one, const Widget* other) { return one->zOrder() < other->zOrder(); });
    for (Widget* child : backToFront) {
        const PaintedArea area(painter, child->paintedBounds());
        child->paint(painter);
        if (Surface* inner = child->embeddedSurface())
            inner->paint(painter);
        else if (const Container* children = childrenOf(*child))
            paintChildren(painter, *children);
        child->paintEdge(painter);
    }
}

} // namespace zilvo::platform
