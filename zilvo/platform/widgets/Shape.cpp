#include "zilvo/platform/widgets/Shape.h"

#include <algorithm>

namespace zilvo::platform {

namespace {

constexpr std::array members = {
    property<&Shape::get_Shape, &Shape::put_Shape>(1, u"Shape", u"newShape"),
    property<&Shape::get_BorderWidth>(2, u"BorderWidth"),
    property<&Shape::get_BorderColor>(3, u"BorderColor"),
    property<&Shape::get_FillColor>(4, u"FillColor"),
    property<&Shape::get_BackColor>(5, u"BackColor"),
};
static_assert(idsAndNamesAreUnique(members));

} // namespace

Shape::Shape(Container& container, const Design& design)
    : Widget(container, placementOf(design)),
      form_(design.Shape),
      borderWidth_(design.BorderWidth),
      borderColor_(design.BorderColor),
      fillColor_(design.FillColor),
      backColor_(design.BackColor),
      filled_(design.Filled) {}

void Shape::put_Shape(Integer newShape) {
    if (newShape < IsRectangle || newShape > IsRoundedSquare)
        throw Failure(Status::InvalidPropertyValue,
                      platform::describe(*this, "Shape") + " cannot be " + platform::describe(Variant(newShape)));
    form_ = newShape;
    changed(Aspect::Look);
}

const ClassDescription& Shape::description() const noexcept {
    static constexpr ClassDescription description{.name = u"Shape", .members = members, .base = &commonMembers};
    return description;
}

void Shape::paint(Painter& painter) const {
    const Single strokeWidth = static_cast<Single>(borderWidth_) * TwipsPerPixel;
    Rectangle area = drawnArea();
    if (form_ == IsSquare || form_ == IsCircle || form_ == IsRoundedSquare) {
        const Single side = std::min(area.width, area.height);
        area = {(area.width - side) / 2, (area.height - side) / 2, side, side};
    }
    ShapeStyle style{.fill = std::nullopt, .stroke = std::nullopt, .strokeWidth = strokeWidth};
    if (filled_) style.fill = fillColor_;
    if (borderWidth_ > 0) style.stroke = borderColor_;
    const Single cornerRadius = std::min(area.width, area.height) / 5;
    switch (form_) {
    case IsOval:
    case IsCircle:
        painter.ellipse(area, style);
        break;
    case IsRoundedRectangle:
    case IsRoundedSquare:
        painter.rectangle(area, style, cornerRadius);
        break;
    default:
        painter.rectangle(area, style);
        break;
    }
}

} // namespace zilvo::platform
