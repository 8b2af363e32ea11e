#include "zilvo/platform/widgets/SSCheck.h"

namespace zilvo::platform {

namespace {

constexpr std::array members = {
    property<&SSCheck::get_Value, &SSCheck::put_Value>(2, u"Value", u"newValue"),
};
static_assert(idsAndNamesAreUnique(members));

} // namespace

SSCheck::SSCheck(Container& container, const Design& design, ClickHandler click)
    : MarkedWidget(container, design), value_(design.Value), click_(click) {}

void SSCheck::put_Value(bool newValue) {
    if (value_ == newValue) return;
    value_ = newValue;
    changed(Aspect::Value);
}

void SSCheck::userClick() {
    put_Value(!value_);
    Integer index = this->index();
    auto value = static_cast<Integer>(asBoolean(value_));
    click_(index, value);
}

const ClassDescription& SSCheck::description() const noexcept {
    static constexpr ClassDescription description{
        .name = u"Threed.SSCheck", .members = members, .base = &captionedMembers};
    return description;
}

void SSCheck::paint(Painter& painter) const {
    paintGround(painter);
    look::check(painter, drawnArea(), look(), value_ ? look::CheckState::Ticked : look::CheckState::Clear);
}

} // namespace zilvo::platform
