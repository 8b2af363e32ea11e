#include "zilvo/platform/hosting/ControlSite.h"

namespace zilvo::platform {

namespace {

constexpr std::array ambientMembers = {
    property<&StandardAmbient::get_BackColor, &StandardAmbient::put_BackColor>(-701, u"BackColor", u"newBackColor"),
    property<&StandardAmbient::get_Font, &StandardAmbient::put_Font>(-703, u"Font", u"newFont"),
    property<&StandardAmbient::get_ForeColor, &StandardAmbient::put_ForeColor>(-704, u"ForeColor", u"newForeColor"),
    property<&StandardAmbient::get_UserMode, &StandardAmbient::put_UserMode>(-709, u"UserMode", u"newUserMode"),
    property<&StandardAmbient::get_DisplayAsDefault, &StandardAmbient::put_DisplayAsDefault>(-713, u"DisplayAsDefault",
                                                                                             u"newDisplayAsDefault"),
};
static_assert(idsAndNamesAreUnique(ambientMembers));

constexpr std::array extenderMembers = {
    property<&Extender::get_Left, &Extender::put_Left>(1, u"Left", u"newLeft"),
    property<&Extender::get_Top, &Extender::put_Top>(2, u"Top", u"newTop"),
    property<&Extender::get_Width, &Extender::put_Width>(3, u"Width", u"newWidth"),
    property<&Extender::get_Height, &Extender::put_Height>(4, u"Height", u"newHeight"),
    property<&Extender::get_Visible, &Extender::put_Visible>(5, u"Visible", u"newVisible"),
    property<&Extender::get_Enabled, &Extender::put_Enabled>(6, u"Enabled", u"newEnabled"),
};
static_assert(idsAndNamesAreUnique(extenderMembers));

} // namespace

FontRef StandardAmbient::get_Font() {
    return font_ ? StdFont::copyOf(font_) : StdFont::make({});
}

const ClassDescription& StandardAmbient::description() const noexcept {
    static constexpr ClassDescription description{.name = u"Ambient", .members = ambientMembers};
    return description;
}

const ClassDescription& Extender::description() const noexcept {
    static constexpr ClassDescription description{.name = u"Extender", .members = extenderMembers};
    return description;
}

} // namespace zilvo::platform
