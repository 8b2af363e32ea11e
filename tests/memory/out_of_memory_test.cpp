#include "tests/support/Deeds.h"
#include "zilvo/platform/component/ComponentRuntime.h"
#include "zilvo/platform/component/ControlHost.h"

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

namespace zilvo {
namespace {

using namespace platform;

/// Takes an object through all that can be done to it, every call across the module's edge. A call that runs out of
/// memory is made again, and must then give what it gives otherwise.
class Life {
public:
    Life(const LoadedComponent& component, const ClassEntry& entry) : component_(component), entry_(entry) {
        live(); // what is made once for all instances is there
        const std::size_t before = heap.blocks;
        bool isOver = false;
        for (std::size_t n = 1; !isOver; ++n) {
            heap.untilFailure = n;
            live();
            isOver = std::exchange(heap.untilFailure, 0) > 0 || testing::Test::HasFailure();
            EXPECT_EQ(heap.blocks, before) << "leaked when allocation " << n << " failed";
            EXPECT_EQ(component.liveObjects(), 0U);
        }
    }

private:
    struct Sink final : EventSink {
        void Event(Long, std::span<Variant>) override {}
    };

    template <class Call>
    static Status once(const Call& call) {
        Status status = Status::Ok;
        heap.armed = true;
        const Status own = atTheEdge(
            nullptr, [] { return std::string(); }, [&] { status = call(); });
        heap.armed = false;
        return own == Status::Ok ? status : own;
    }
    template <class Call>
    static Status edge(const Call& call) {
        const Status status = once(call);
        return status == Status::OutOfMemory ? once(call) : status;
    }

    void live() {
        const Ref<ClassFactory> factory = component_.classFactory(entry_.identity.classId);
        Ref<Object> object;
        ASSERT_EQ(edge([&] { return factory->CreateInstance(object); }), Status::Ok);
        Sink sink;
        std::vector<Connection> connections(object->description().events.size());
        for (std::size_t i = 0; i < connections.size(); ++i)
            ASSERT_EQ(
                edge([&] { return object->Connect(object->description().events[i].number, sink, connections[i]); }),
                Status::Ok);
        std::optional<ControlHost> host;
        if (HostedControl* control = object->hostedControl()) {
            host.emplace(object);
            const Status loaded = once([&] { return control->Load(MemoryPropertyBag()); });
            ASSERT_TRUE(loaded == Status::Ok || loaded == Status::OutOfMemory); // either way it has taken place
            ASSERT_EQ(edge([&] { return control->SetSize(3000, 1500); }), Status::Ok);
        }
        if (deeds_.empty()) deeds_ = deedsOf(*object);
        statuses_.resize(deeds_.size(), Status::OutOfMemory);
        for (std::size_t i = 0; i < deeds_.size(); ++i) {
            deeds_[i].prepare(*object);
            const Status status = edge([&] { return deeds_[i].run(*object); });
            if (statuses_[i] == Status::OutOfMemory) statuses_[i] = status;
            ASSERT_EQ(status, statuses_[i]) << "deed " << i;
        }
    }

    const LoadedComponent& component_;
    const ClassEntry& entry_;
    std::vector<Deed> deeds_;
    std::vector<Status> statuses_; ///< what the deeds give when there is memory
};

} // namespace

TEST(OutOfMemory, FailsTheCallAndNothingElse) {
    const LoadedComponent component(COMPONENT_FILE);
    for (const ClassEntry& entry : component.description().classes) {
        SCOPED_TRACE(toUtf8(entry.identity.name));
        const Life life(component, entry);
    }
}

} // namespace zilvo
