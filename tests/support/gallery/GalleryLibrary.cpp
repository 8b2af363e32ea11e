#include "tests/support/gallery/GalleryLibrary.h"

#include "tests/support/gallery/Outer.h"
#include "tests/support/gallery/WidgetGallery.h"
#include "zilvo/framework/Identity.h"

namespace zilvo {

namespace {

// clang-format off
constexpr LibraryIdentity identity{
    .name = u"Gallery", .id = "{5A1E0F10-3B52-4C6E-9B10-77A0C1D20000}"_guid, .majorVersion = 1, .minorVersion = 2,
    .locale = 1033, .helpString = u"Every kind of widget, member and event"};
constexpr VersionRecord version{.version = {1, 2, 0, 0}, .strings = {}};
constexpr ClassIdentity widgetGallery{
    u"WidgetGallery", "{5A1E0F10-3B52-4C6E-9B10-77A0C1D20010}"_guid, "{5A1E0F10-3B52-4C6E-9B10-77A0C1D20011}"_guid,
    "{5A1E0F10-3B52-4C6E-9B10-77A0C1D20012}"_guid, 30000, ControlStatus};
constexpr ClassIdentity outer{
    u"Outer", "{5A1E0F10-3B52-4C6E-9B10-77A0C1D20020}"_guid, "{5A1E0F10-3B52-4C6E-9B10-77A0C1D20021}"_guid,
    "{5A1E0F10-3B52-4C6E-9B10-77A0C1D20022}"_guid, 30001, ControlStatus};
constexpr ClassIdentity small{
    u"Small", "{5A1E0F10-3B52-4C6E-9B10-77A0C1D20030}"_guid, "{5A1E0F10-3B52-4C6E-9B10-77A0C1D20031}"_guid,
    "{5A1E0F10-3B52-4C6E-9B10-77A0C1D20032}"_guid, 30002, ControlStatus};
// clang-format on

template <class T>
Ref<Object> creator(ComponentModule& module) {
    return createObject<T>(module);
}

constexpr std::array<const EnumerationDescription*, 1> enumerationsOfGallery = {&galleryMoodDescription};
constinit const std::array classes = {
    ClassEntry{widgetGallery, WidgetGallery::Description, creator<WidgetGallery>},
    ClassEntry{outer, Outer::Description, creator<Outer>},
    ClassEntry{small, Small::Description, creator<Small>},
};
constinit const ComponentDescription component{identity, version, enumerationsOfGallery, classes};

} // namespace

ComponentModule& galleryModule() noexcept {
    static constinit ComponentModule module(component);
    return module;
}

} // namespace zilvo
