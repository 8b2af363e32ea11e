#include "zilvo/platform/widgets/CaptionedWidget.h"

namespace zilvo::platform {

namespace {

constexpr std::array members = {
    property<&CaptionedWidget::get_Caption, &CaptionedWidget::put_Caption>(-518, u"Caption", u"newCaption"),
    property<&CaptionedWidget::get_BackColor, &CaptionedWidget::put_BackColor>(-501, u"BackColor", u"newBackColor"),
    property<&CaptionedWidget::get_ForeColor, &CaptionedWidget::put_ForeColor>(-513, u"ForeColor", u"newForeColor"),
    property<&CaptionedWidget::get_Font, &CaptionedWidget::put_Font>(-512, u"Font", u"newFont"),
};
static_assert(idsAndNamesAreUnique(members));

} // namespace

const ClassDescription CaptionedWidget::captionedMembers{
    .name = u"CaptionedWidget", .members = members, .base = &commonMembers};

CaptionedWidget::CaptionedWidget(Container& container, const Placement& place, const Appearance& appearance)
    : Widget(container, place),
      caption_(appearance.caption),
      font_(surface(), appearance.font),
      backColor_(appearance.backColor),
      foreColor_(appearance.foreColor) {}

void CaptionedWidget::put_Caption(StringView newCaption) {
    caption_.set(newCaption);
    changed(Aspect::Caption);
}

void CaptionedWidget::put_BackColor(Colour newBackColor) {
    if (backColor_ == newBackColor) return;
    backColor_ = newBackColor;
    changed(Aspect::Look);
}

void CaptionedWidget::put_ForeColor(Colour newForeColor) {
    if (foreColor_ == newForeColor) return;
    foreColor_ = newForeColor;
    changed(Aspect::Look);
}

} // namespace zilvo::platform
