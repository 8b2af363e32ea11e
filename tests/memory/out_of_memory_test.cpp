#include "zilvo/platform/component/ComponentRuntime.h"
#include "zilvo/platform/component/ControlHost.h"
#include "zilvo/platform/painting/SvgPainter.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <new>

namespace {

/// The heap of this program: what of it is in use, and which of the next allocations fails.
struct Heap {
    std::size_t blocks = 0;
    std::size_t untilFailure = 0; ///< 0 for never
    bool armed = false;
} heap;

} // namespace

void* operator new(std::size_t size) {
    if (heap.armed && heap.untilFailure > 0 && --heap.untilFailure == 0) throw std::bad_alloc();
    void* memory = std::malloc(size);
    if (!memory) throw std::bad_alloc();
    ++heap.blocks;
    return memory;
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    try {
        return operator new(size);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

void operator delete(void* memory) noexcept {
    if (memory) --heap.blocks;
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    operator delete(memory);
}

namespace zilvo::platform {
namespace {

/// Takes an object through all that a host does with it, every call across the module's edge. A call that runs out of
/// memory is made again, and must then give what it gives otherwise.
class Life {
public:
    void of(const LoadedComponent& component, const ClassEntry& entry) {
        live(component, entry); // what is made once for all instances is there
        const std::size_t before = heap.blocks;
        for (bool isOver = false; !isOver; ++failures) {
            heap.untilFailure = failures + 1;
            live(component, entry);
            isOver = std::exchange(heap.untilFailure, 0) > 0;
            ASSERT_EQ(heap.blocks, before) << "leaked when allocation " << failures + 1 << " failed";
            ASSERT_EQ(component.liveObjects(), 0U);
        }
    }
    std::size_t failures = 0;

private:
    struct Sink final : EventSink {
        void Event(Long, std::span<Variant>) override {}
    };
    struct Site final : ControlSite {
        struct Place final : Extender {};
        Ambient& ambient() override { return ambientProperties; }
        Extender& extender() override { return place; }
        void PropertyChanged(StringView) override {}
        void SizeChanged(Single, Single) override {}
        void Beep() override {}
        StandardAmbient ambientProperties;
        Place place;
    };

    template <class Call>
    Status edge(const Call& call) {
        const bool mayFail = heap.untilFailure > 0;
        heap.armed = true;
        const Status status = call(nullptr);
        heap.armed = false;
        const bool failed = mayFail && heap.untilFailure == 0;
        if (status != Status::OutOfMemory) return status;
        EXPECT_TRUE(failed);
        ErrorInfo error;
        return call(&error);
    }

    void live(const LoadedComponent& component, const ClassEntry& entry) {
        Ref<ClassFactory> factory = component.classFactory(entry.identity.classId);
        Ref<Object> object;
        ASSERT_EQ(edge([&](ErrorInfo* error) { return factory->CreateInstance(object, error); }), Status::Ok);
        Sink sink;
        std::vector<Connection> connections(object->description().events.size());
        for (std::size_t i = 0; i < connections.size(); ++i)
            ASSERT_EQ(edge([&](ErrorInfo* error) {
                          return object->Connect(object->description().events[i].number, sink, connections[i], error);
                      }),
                      Status::Ok);
        if (HostedControl* control = object->hostedControl()) {
            Site site;
            host(*control, site);
            members(*object);
            use(*control);
            control->Close();
        } else
            members(*object);
    }

    void host(HostedControl& control, Site& site) {
        ASSERT_EQ(edge([&](ErrorInfo* error) { return control.SetSite(site, error); }), Status::Ok);
        // Loading is not repeated: it has taken place.
        const MemoryPropertyBag settings;
        heap.armed = true;
        const Status loaded = control.Load(settings, nullptr);
        heap.armed = false;
        ASSERT_TRUE(loaded == Status::Ok || loaded == Status::OutOfMemory);
        ASSERT_EQ(edge([&](ErrorInfo* error) { return control.SetSize(3000, 1500, error); }), Status::Ok);
        ASSERT_EQ(edge([&](ErrorInfo* error) { return control.AmbientPropertyChanged(u"UserMode", error); }),
                  Status::Ok);
    }

    void members(Object& object) {
        for (const MemberDescription& member : object.description().members) {
            std::vector<Variant> arguments(member.argumentCount, Variant(Integer{1}));
            if (member.accessor(Access::Get)) {
                Variant value;
                ASSERT_EQ(
                    edge([&](ErrorInfo* error) { return object.Invoke(member.id, Access::Get, {}, &value, error); }),
                    Status::Ok);
                arguments.assign(1, value);
            }
            for (const Access how : {Access::Put, Access::PutReference, Access::Method})
                if (member.accessor(how))
                    edge([&](ErrorInfo* error) { return object.Invoke(member.name, how, arguments, nullptr, error); });
        }
        edge([&](ErrorInfo* error) { return object.Invoke(u"Nothing", Access::Get, {}, nullptr, error); });
    }

    void use(HostedControl& control) {
        const auto input = [&](const InputEvent& event) {
            edge([&](ErrorInfo* error) { return control.Input(event, nullptr, error); });
            heap.armed = true;
            control.focus();
            heap.armed = false;
        };
        for (Widget& widget : control.surface())
            input(input::Act{widget});
        input(input::PointerDown{{700, 300}, input::RightButton});
        for (const StringView key : {u"Down", u"Enter", u"Tab", u"Space", u"Alt+S", u"5"})
            input(*parseKey(key));
        SvgPainter painter(3000, 1500);
        ASSERT_EQ(edge([&](ErrorInfo* error) { return control.Paint(painter, error); }), Status::Ok);
        MemoryPropertyBag saved;
        ASSERT_EQ(edge([&](ErrorInfo* error) { return control.Save(saved, error); }), Status::Ok);
    }
};

} // namespace

TEST(OutOfMemory, FailsTheCallAndNothingElse) {
    const LoadedComponent component(COMPONENT_FILE);
    for (const ClassEntry& entry : component.description().classes) {
        SCOPED_TRACE(toUtf8(entry.identity.name));
        Life life;
        life.of(component, entry);
    }
}

} // namespace zilvo::platform
