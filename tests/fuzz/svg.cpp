// Whatever a control shows, its picture is a well-formed document.
#include "tests/fuzz/Fuzz.h"
#include "tests/fuzz/WellFormed.h"
#include "zilvo/platform/component/ControlHost.h"
#include "zilvo/platform/painting/SvgPainter.h"

using namespace zilvo;
using platform::Widget;

namespace {

/// Sets any members of a widget.
void change(Widget& widget, fuzz::Input& in) {
    for (const auto* at = &widget.description(); at; at = at->base)
        for (const auto& member : at->members)
            if (in.ConsumeBool()) fuzz::attempt([&] { platform::putMember(widget, member.name, in.value()); });
}

void drawLine(platform::Painter& painter, fuzz::Input& in) {
    const String text = in.text();
    const FontRef font = in.font();
    platform::TextRun run{.text = text, .origin = in.point(), .font = font->look(), .colour = {}};
    run.width = painter.measure(text, run.font);
    run.align = static_cast<platform::Alignment>(in.below(3));
    if (in.ConsumeBool()) run.underlined = in.below(70);
    painter.text(run);
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    {
        fuzz::Input in(data, size);
        const Ref<Object> object = in.object();
        if (!object->hostedControl()) return 0;
        platform::ControlHost host(object);
        host.open();
        std::vector<Widget*> widgets;
        fuzz::collect(host.control().surface(), widgets);
        for (int left = 8; left > 0 && in.ConsumeBool() && !widgets.empty(); --left)
            change(*in.oneOf(widgets), in);
        platform::SvgPainter painter(in.single(), in.single());
        host.paint(painter);
        while (in.ConsumeBool())
            drawLine(painter, in);
        const std::string picture = painter.document();
        fuzz::require(fuzz::isWellFormed(picture), "a picture is well-formed:\n" + picture);
    }
    fuzz::requireNothingAlive();
    return 0;
}
