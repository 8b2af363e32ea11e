#include "zilvo/platform/component/Resources.h"

#include "zilvo/platform/component/TypeLibrary.h"
#include "zilvo/platform/component/VersionResource.h"

#include <algorithm>

namespace zilvo::platform {

namespace {

/// A 32-bit length, then the identifier in its binary form.
Bytes interfaceIdResource(const Guid& id) {
    Bytes out;
    appendLittleEndian(out, 16, 4);
    appendGuid(out, id);
    return out;
}

String capitals(StringView name) {
    String text(name);
    for (char16_t& letter : text)
        if (letter >= u'a' && letter <= u'z') letter = static_cast<char16_t>(letter - u'a' + u'A');
    return text;
}

} // namespace

Bitmap bitmapOf(const ToolboxPicture& picture) {
    Bitmap bitmap(ToolboxPicture::Width, ToolboxPicture::Height);
    for (int y = 0; y < ToolboxPicture::Height; ++y)
        for (int x = 0; x < ToolboxPicture::Width; ++x)
            bitmap.set(
                x, y,
                *ToolboxPicture::colourOf(picture.rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)]));
    return bitmap;
}

std::vector<Resource> resourcesOf(const ComponentDescription& component) {
    std::vector<Resource> resources = {{u"TYPELIB", u"1", typeLibraryOf(component)}};
    for (const ClassEntry& entry : component.classes)
        if (entry.identity.toolboxBitmap && entry.toolboxPicture)
            resources.push_back({u"BITMAP", toUtf16(std::to_string(*entry.identity.toolboxBitmap)),
                                 bitmapOf(*entry.toolboxPicture).deviceIndependent()});
    std::sort(resources.begin() + 1, resources.end(),
              [](const Resource& one, const Resource& other) { return one.name < other.name; });
    for (const ClassEntry& entry : component.classes) {
        const String name = capitals(entry.identity.name);
        resources.push_back({u"RCDATA", u"_IID_" + name, interfaceIdResource(entry.identity.interfaceId)});
        if (entry.identity.eventInterfaceId)
            resources.push_back({u"RCDATA", u"_SRCIID_" + name, interfaceIdResource(*entry.identity.eventInterfaceId)});
    }
    resources.push_back({u"VERSION", u"1", versionResourceOf(component.version)});
    return resources;
}

} // namespace zilvo::platform
