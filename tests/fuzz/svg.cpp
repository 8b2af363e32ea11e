// Whatever a control shows, its picture is a well-formed document.
#include "tests/fuzz/Fuzz.h"
#include "tests/support/WellFormed.h"
#include "zilvo/platform/component/ControlHost.h"
#include "zilvo/platform/painting/SvgPainter.h"

using namespace zilvo;

namespace {

void changeMembers(platform::Widget& widget, fuzz::Input& in) {
    for (const auto* at = &widget.description(); at; at = at->base)
        for (const auto& member : at->members)
            if (in.ConsumeBool()) fuzz::attempt([&] { platform::putMember(widget, member.name, in.value()); });
}

void drawLine(platform::Painter& painter, fuzz::Input& in) {
    const String text = in.text();
    const FontRef font = in.font();
    const auto align = static_cast<platform::Alignment>(in.ConsumeIntegralInRange(0, 2));
    const auto underlined = in.ConsumeIntegralInRange<std::size_t>(0, 70);
    painter.text({text, in.point(), painter.measure(text, font->look()), align, font->look(), {}, underlined});
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    {
        fuzz::Input in(data, size);
        const Ref<Object> object = in.object();
        if (!object->hostedControl()) return -1; // not worth keeping
        platform::ControlHost host(object);
        host.open();
        std::vector<platform::Widget*> widgets;
        fuzz::collect(host.control().surface(), widgets);
        while (!widgets.empty() && in.ConsumeBool())
            changeMembers(*in.oneOf(widgets), in);
        platform::SvgPainter painter(in.single(), in.single());
        host.paint(painter);
        while (in.ConsumeBool())
            drawLine(painter, in);
        const std::string picture = painter.document();
        fuzz::require(platform::isWellFormed(picture), "a picture is well-formed:\n" + picture);
    }
    fuzz::requireNothingAlive();
    return 0;
}
