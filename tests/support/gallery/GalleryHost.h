#pragma once

#include "tests/support/gallery/GalleryLibrary.h"
#include "zilvo/platform/component/ControlHost.h"
#include "zilvo/platform/painting/SvgPainter.h"
#include "zilvo/platform/values/Conversions.h"

#include <gtest/gtest.h>

namespace zilvo {

/// What a host heard, in order: "CommandClicked(0)", "RibbonClicked(1, -1)", "SpunUp()".
using Heard = std::vector<std::string>;

/// A live control of the gallery, driven as a user drives it, with a log of its events. Widgets are named as in
/// "spnCount", "cmdPush2" (an element), "smallOne.ssoPick1" (in an embedded control).
class GalleryHost {
public:
    static Ref<Object> make(StringView className) {
        return galleryModule().description().find(className)->create(galleryModule());
    }
    explicit GalleryHost(StringView className = u"WidgetGallery")
        : GalleryHost(std::make_unique<ControlHost>(make(className))) {}
    explicit GalleryHost(std::unique_ptr<ControlHost> host) : host_(std::move(host)) {
        for (const EventDescription& event : host_->object().description().events)
            host_->on(event.name, [&log = *heard_, name = toUtf8(event.name)](std::span<Variant> arguments) {
                std::string entry = name + "(";
                for (const Variant& argument : arguments)
                    entry += (entry.back() == '(' ? "" : ", ") + toUtf8(toString(argument));
                log.push_back(entry + ")");
            });
        host_->open();
    }

    ControlHost* operator->() const { return host_.get(); }
    Surface& surface() const { return host_->control().surface(); }
    /// Since the last call.
    Heard heard() const { return std::exchange(*heard_, {}); }

    Widget& operator[](StringView path) const {
        const Surface* on = &surface();
        if (const auto dot = path.find(u'.'); dot != path.npos) {
            on = (*this)[path.substr(0, dot)].embeddedSurface();
            path.remove_prefix(dot + 1);
        }
        const StringView name = path.substr(0, path.find_first_of(u"0123456789"));
        path.remove_prefix(name.size());
        Widget* widget = on->find(name, path.empty() ? NoIndex : toInteger(Variant(String(path))));
        if (!widget) throw Failure(Status::MissingElement, "there is no widget " + toUtf8(name));
        return *widget;
    }
    void put(StringView path, StringView member, const Variant& value) const {
        putMember((*this)[path], member, value);
    }

    bool act(const InputEvent& event) const { return host_->input(event); }
    bool click(StringView path) const { return act(input::Act{(*this)[path]}); }
    bool press(Point at, Integer button = input::LeftButton) const { return act(input::PointerDown{at, button}); }
    bool move(Point at) const { return act(input::PointerMove{at}); }
    bool release(Point at) const { return act(input::PointerUp{at}); }
    bool key(StringView name) const { return act(*parseKey(name)); }
    bool wait(int milliseconds) const { return act(input::TimePassed{std::chrono::milliseconds(milliseconds)}); }
    /// A press of the left button there, let go of elsewhere: no click.
    void focusOn(StringView path) const { press(pointOf(path)), release({-1, -1}); }

    /// On the control's surface, in twips; for widgets that lie on it or in its panels and frames.
    Point pointOf(StringView path, Single across = 0.5F, Single down = 0.5F) const {
        const Widget& wanted = (*this)[path];
        Point point{wanted.bounds().width * across, wanted.bounds().height * down};
        for (const Widget* outer = &wanted; outer; outer = outer->parent())
            point = {point.x + outer->bounds().left, point.y + outer->bounds().top};
        return point;
    }

    std::string painted() const {
        SvgPainter painter(surface().area().width, surface().area().height);
        host_->paint(painter);
        return painter.document();
    }

private:
    std::unique_ptr<Heard> heard_ = std::make_unique<Heard>();
    std::unique_ptr<ControlHost> host_;
};

} // namespace zilvo
