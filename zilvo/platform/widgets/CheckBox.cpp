#include "zilvo/platform/widgets/CheckBox.h"

#include "zilvo/platform/widgets/Surface.h"

namespace zilvo::platform {

namespace {

constexpr std::array members = {
    property<&CheckBox::get_Value, &CheckBox::put_Value>(2, u"Value", u"newValue"),
};
static_assert(idsAndNamesAreUnique(members));

} // namespace

CheckBox::CheckBox(Container& container, const Design& design, ClickHandler click)
    : MarkedWidget(container, design), value_(design.Value), click_(click) {}

void CheckBox::change(Integer newValue) {
    if (newValue < Unchecked || newValue > Greyed)
        throw Failure(Status::InvalidPropertyValue,
                      platform::describe(*this, "Value") + " cannot be " + platform::describe(Variant(newValue)));
    value_ = newValue;
    const HeldSurface held(surface());
    changed(Aspect::Value);
    Integer index = this->index();
    click_(index);
}

const ClassDescription& CheckBox::description() const noexcept {
    static constexpr ClassDescription description{.name = u"CheckBox", .members = members, .base = &captionedMembers};
    return description;
}

std::optional<platform::Checked> CheckBox::checked() const noexcept {
    return value_ == Checked  ? platform::Checked::Yes
           : value_ == Greyed ? platform::Checked::Mixed
                              : platform::Checked::No;
}

void CheckBox::paint(Painter& painter) const {
    paintGround(painter);
    const auto state = value_ == Checked  ? look::CheckState::Ticked
                       : value_ == Greyed ? look::CheckState::Greyed
                                          : look::CheckState::Clear;
    look::check(painter, drawnArea(), look(), state);
}

} // namespace zilvo::platform
