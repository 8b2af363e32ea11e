#include "hosts/console/Snapshot.h"

#include "platform/painting/FontMetrics.h"
#include "platform/painting/SvgPainter.h"

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <unistd.h>

namespace zilvo::console {

using namespace platform;

namespace {

/// Draws nothing, but finds out how far the drawing reaches to the right and down. What lies in an entered
/// area is clipped to it, so only the outermost areas count.
class ExtentPainter final : public Painter {
public:
    Single right = 0;
    Single bottom = 0;

    void rectangle(const Rectangle& area, const ShapeStyle&, Single) override { reach(area); }
    void ellipse(const Rectangle& area, const ShapeStyle&) override { reach(area); }
    void polygon(std::span<const Point> corners, const ShapeStyle&) override {
        for (const Point& corner : corners)
            reach({corner.x, corner.y, 0, 0});
    }
    void line(Point from, Point to, Rgb, Single width) override {
        reach({from.x, from.y, width, width});
        reach({to.x, to.y, 0, 0});
    }
    void text(const TextRun& run) override { reach({run.origin.x, run.origin.y, run.width, 0}); }
    void bitmap(const Bitmap&, const Rectangle& area) override { reach(area); }
    void enter(const Rectangle& area) override {
        reach(area);
        ++depth_;
    }
    void leave() override { --depth_; }
    Single measure(StringView text, const FontLook& font) const override { return textWidth(text, font); }

private:
    void reach(const Rectangle& area) {
        if (depth_ > 0) return;
        right = std::max(right, area.right());
        bottom = std::max(bottom, area.bottom());
    }

    unsigned depth_ = 0;
};

[[noreturn]] void fail(const std::filesystem::path& file, const std::string& why) {
    throw Failure(Status::Failed, file.string() + " cannot be written: " + why);
}

void write(const std::filesystem::path& target, const std::string& text, const std::filesystem::path& named) {
    errno = 0;
    std::ofstream out(target, std::ios::binary | std::ios::trunc);
    out << text;
    out.close();
    if (!out) fail(named, errno ? std::generic_category().message(errno) : "writing failed");
}

} // namespace

std::string svgOf(ControlHost& host) {
    ExtentPainter extent;
    host.paint(extent);
    SvgPainter painter(extent.right, extent.bottom);
    host.paint(painter);
    return painter.document();
}

void writeFile(const std::filesystem::path& file, const std::string& text) {
    std::error_code error;
    const auto existing = std::filesystem::status(file, error);
    if (std::filesystem::is_directory(existing)) fail(file, "it is a directory");
    // A device or a pipe is written to; only a file can be replaced.
    if (std::filesystem::exists(existing) && !std::filesystem::is_regular_file(existing))
        return write(file, text, file);

    // A link stays, and what it names is replaced.
    auto target = std::filesystem::exists(existing) ? std::filesystem::canonical(file, error) : file;
    if (error) target = file;
    const auto partial = std::filesystem::path(target) += "." + std::to_string(getpid()) + ".part";
    try {
        write(partial, text, file);
        std::filesystem::rename(partial, target, error);
        if (error) fail(file, error.message());
    } catch (const Failure&) {
        std::filesystem::remove(partial, error);
        throw;
    }
}

} // namespace zilvo::console
