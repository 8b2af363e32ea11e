#pragma once

#include "tests/support/EventLog.h"
#include "tests/support/gallery/GalleryLibrary.h"
#include "zilvo/platform/painting/SvgPainter.h"

#include <gtest/gtest.h>

namespace zilvo {

using Heard = EventLog::Entries;

/// A widget of the control under test, by name and index.
struct At {
    StringView name;
    Integer index = NoIndex;
};

/// A live control of the gallery, driven as a user drives it, with a log of its events.
class GalleryHost {
public:
    GalleryHost() : GalleryHost(createObject<WidgetGallery>(galleryModule())) {}
    explicit GalleryHost(Ref<Object> object)
        : host_(std::make_unique<ControlHost>(std::move(object))), log_(std::make_unique<EventLog>(*host_)) {
        host_->open();
    }

    ControlHost& host() const { return *host_; }
    ControlHost* operator->() const { return host_.get(); }
    Surface& surface() const { return host_->control().surface(); }
    Heard heard() const { return log_->take(); }
    /// Ends the host, as one of its own handlers may.
    void destroy() { host_.reset(); }
    bool isDestroyed() const { return !host_; }

    /// The inner surface of the embedded control of that name.
    Surface& inside(StringView embedded) const { return *surface().find(embedded)->embeddedSurface(); }
    Widget& widget(At at) const { return widgetOf(surface(), at); }
    static Widget& widgetOf(const Surface& surface, At at) {
        Widget* widget = surface.find(at.name, at.index);
        if (!widget) throw Failure(Status::MissingElement, "there is no widget " + toUtf8(at.name));
        return *widget;
    }

    Variant get(At at, StringView member) const { return getMember(widget(at), member); }
    void put(At at, StringView member, const Variant& value) const { putMember(widget(at), member, value); }
    bool isOn(At at) const { return toNumber(get(at, u"Value")) != 0; }

    bool act(const InputEvent& event) const { return host_->input(event); }
    bool click(At at) const { return host_->click(at.name, at.index); }
    bool press(Point at, Integer button = input::LeftButton, Integer shift = 0) const {
        return act(input::PointerDown{at, button, shift});
    }
    bool move(Point at) const { return act(input::PointerMove{at}); }
    bool release(Point at, Integer button = input::LeftButton) const { return act(input::PointerUp{at, button}); }
    bool type(Integer code) const { return act(input::KeyTyped{code}); }
    bool key(StringView name) const { return act(*parseKey(name)); }
    bool wait(int milliseconds) const { return act(input::TimePassed{std::chrono::milliseconds(milliseconds)}); }

    /// "ssoSeat(2)", or "" when nothing has the keyboard.
    std::string focus() const {
        const Widget* widget = host_->control().focus();
        if (!widget) return "";
        const auto index = widget->isArrayElement() ? "(" + std::to_string(widget->index()) + ")" : std::string();
        return toUtf8(widget->name()) + index;
    }
    void focusOn(At at) const {
        const Point point = middleOf(at);
        press(point);
        release({-1, -1});
        EXPECT_EQ(host_->control().focus(), &widget(at));
    }

    /// On the control's surface, in twips; for widgets that lie on it or in its panels and frames.
    Point middleOf(At at) const { return pointOf(at, 0.5F, 0.5F); }
    Point pointOf(At at, Single across, Single down) const {
        const Widget& wanted = widget(at);
        Point point{wanted.bounds().width * across, wanted.bounds().height * down};
        for (const Widget* outer = &wanted; outer; outer = outer->parent())
            point = {point.x + outer->bounds().left, point.y + outer->bounds().top};
        return point;
    }

    std::string painted() const {
        const Rectangle area = surface().area();
        SvgPainter painter(area.width, area.height);
        host_->paint(painter);
        return painter.document();
    }

private:
    std::unique_ptr<ControlHost> host_;
    std::unique_ptr<EventLog> log_;
};

} // namespace zilvo
