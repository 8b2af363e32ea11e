#include "zilvo/platform/widgets/SSOption.h"

#include "zilvo/platform/widgets/Surface.h"

namespace zilvo::platform {

namespace {

constexpr std::array members = {
    property<&SSOption::get_Value, &SSOption::put_Value>(2, u"Value", u"newValue"),
};
static_assert(idsAndNamesAreUnique(members));

} // namespace

SSOption::SSOption(Container& container, const Design& design, ClickHandler click)
    : MarkedWidget(container, design), click_(click) {
    if (design.Value) container.selectedSSOption = this;
}

void SSOption::put_Value(bool newValue) {
    if (newValue == get_Value()) return;
    const SSOption* before = std::exchange(container().selectedSSOption, newValue ? this : nullptr);
    const HeldSurface held(surface());
    if (before && before != this) before->changed(Aspect::Value);
    changed(Aspect::Value);
}

void SSOption::userClick() {
    put_Value(true);
    Integer index = this->index();
    auto value = static_cast<Integer>(Boolean::True);
    click_(index, value);
}

bool SSOption::isTabStop() const {
    const SSOption* selected = container().selectedSSOption;
    return selected && selected->acceptsInput() ? selected == this : leadsGroup();
}

bool SSOption::isInGroupWith(const Widget& other) const noexcept {
    return &other.container() == &container() && dynamic_cast<const SSOption*>(&other);
}

const ClassDescription& SSOption::description() const noexcept {
    static constexpr ClassDescription description{
        .name = u"Threed.SSOption", .members = members, .base = &captionedMembers};
    return description;
}

void SSOption::paint(Painter& painter) const {
    paintGround(painter);
    look::option(painter, drawnArea(), look(), get_Value());
}

} // namespace zilvo::platform
