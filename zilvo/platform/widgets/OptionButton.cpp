#include "zilvo/platform/widgets/OptionButton.h"

#include "zilvo/platform/widgets/Surface.h"

namespace zilvo::platform {

namespace {

constexpr std::array members = {
    property<&OptionButton::get_Value, &OptionButton::put_Value>(2, u"Value", u"newValue"),
};
static_assert(idsAndNamesAreUnique(members));

} // namespace

OptionButton::OptionButton(Container& container, const Design& design, ClickHandler click)
    : MarkedWidget(container, design), click_(click) {
    if (design.Value) container.selectedOption = this;
}

void OptionButton::put_Value(bool newValue) {
    if (newValue) {
        select();
    } else if (get_Value()) {
        container().selectedOption = nullptr;
        changed(Aspect::Value);
    }
}

void OptionButton::select() {
    if (get_Value()) return;
    const OptionButton* before = std::exchange(container().selectedOption, this);
    const HeldSurface held(surface());
    if (before) before->changed(Aspect::Value);
    changed(Aspect::Value);
    Integer index = this->index();
    click_(index);
}

bool OptionButton::isTabStop() const {
    const OptionButton* selected = container().selectedOption;
    return selected && selected->acceptsInput() ? selected == this : leadsGroup();
}

bool OptionButton::isInGroupWith(const Widget& other) const noexcept {
    return &other.container() == &container() && dynamic_cast<const OptionButton*>(&other);
}

const ClassDescription& OptionButton::description() const noexcept {
    static constexpr ClassDescription description{
        .name = u"OptionButton", .members = members, .base = &captionedMembers};
    return description;
}

void OptionButton::paint(Painter& painter) const {
    paintGround(painter);
    look::option(painter, drawnArea(), look(), get_Value());
}

} // namespace zilvo::platform
