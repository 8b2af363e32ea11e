#include "tests/support/Outcome.h"
#include "zilvo/library/ZilvoButtons.h"
#include "zilvo/platform/component/Components.h"
#include "zilvo/platform/component/ControlHost.h"

#include <dlfcn.h>
#include <gtest/gtest.h>
#include <malloc.h>
#include <map>

namespace zilvo {

namespace {

bool isInProcess(const std::filesystem::path& file) {
    void* library = dlopen(file.c_str(), RTLD_NOW | RTLD_NOLOAD);
    if (library) dlclose(library);
    return library != nullptr;
}

} // namespace

TEST(Runtime, NullPointersGiveAStatus) {
    void* library = dlopen(COMPONENT_FILE, RTLD_NOW);
    const auto get = reinterpret_cast<GetClassObjectEntry*>(dlsym(library, "DllGetClassObject"));
    const Guid& id = classIdentities.front().classId;
    void* object = &library;
    for (const std::uint32_t status : {get(nullptr, &ClassFactoryInterface, &object), get(&id, nullptr, &object),
                                       get(&id, &ClassFactoryInterface, nullptr), get(nullptr, nullptr, nullptr)})
        EXPECT_EQ(status, static_cast<std::uint32_t>(Status::NullPointer));
    EXPECT_EQ(object, nullptr);
    dlclose(library);
}

TEST(Runtime, ProvidesOneInstanceOfAnApplicationObject) {
    Components components;
    KnownComponent& component = components.add(COMPONENT_FILE);
    EXPECT_FALSE(isInProcess(COMPONENT_FILE)) << "known by its file alone";
    auto one = components.application(u"ZILVO_ZilvoButtons.ZilvoButtonGoodies");
    EXPECT_EQ(component.application(u"ZilvoButtonGoodies").get(), one.get());
    EXPECT_NE(component.create(u"ZilvoButtonGoodies").get(), one.get());
    EXPECT_EQ(component.liveObjects(), 1U);
    one = {};
    EXPECT_EQ(component.liveObjects(), 0U) << "it keeps no component loaded by itself";
    for (const StringView no : {u"ssOKCancel", u"Nothing"})
        EXPECT_THROW(component.application(no), Failure);

    const auto typed = application<ZilvoButtonGoodies>();
    EXPECT_EQ(application<ZilvoButtonGoodies>().get(), typed.get());
    Integer SeatDescriptor = 5;
    auto WhichBit = SeatSpreadPossibilities::SpreadToSeat1Requested;
    EXPECT_EQ(typed->SeatBitSet(SeatDescriptor, WhichBit), SeatSpreadPossibilities{7});
}

TEST(Runtime, AClassThatIsNowhereIsNotAvailableWithoutAPlaceForRegistrations) {
    std::map<const char*, std::string> before;
    for (const char* name : {"ZILVO_REGISTRATIONS", "XDG_DATA_HOME", "HOME"})
        if (const char* value = getenv(name)) before[name] = value, unsetenv(name);
    Components components;
    EXPECT_EQ(platform::outcomeOf([&] { components.create(u"Nowhere"); }).status, Status::ClassNotAvailable);
    for (const auto& [name, value] : before)
        setenv(name, value.c_str(), 1);
}

TEST(Runtime, AThousandRoundsOfLoadingAndUnloadingLeaveNothingBehind) {
    const auto round = [](std::size_t number) {
        LoadedComponent component(COMPONENT_FILE);
        const auto classes = component.description().classes;
        const ClassIdentity& identity = classes[number % classes.size()].identity;
        Ref<Object> object = component.create(identity.name);
        if (identity.isControl()) {
            ControlHost host(std::move(object));
            for (const EventDescription& event : host.object().description().events)
                host.on(event.name, [](std::span<Variant>) {});
            host.open();
            EXPECT_GE(component.liveObjects(), 1U);
        }
        object = nullptr;
        component.unload();
    };
    std::size_t usedBefore = 0;
    for (std::size_t number = 0; number < 1000; ++number) {
        if (number == 100) usedBefore = mallinfo2().uordblks;
        round(number);
    }
    EXPECT_EQ(mallinfo2().uordblks, usedBefore) << "bytes of the heap in use";
    EXPECT_FALSE(isInProcess(COMPONENT_FILE));
}

TEST(Runtime, AModuleThatIsNoComponentLacksTheEntryPoints) {
    Dl_info known{};
    ASSERT_NE(dladdr(reinterpret_cast<const void*>(&parseKey), &known), 0);
    const auto outcome = platform::outcomeOf([&] { LoadedComponent(known.dli_fname); });
    EXPECT_EQ(outcome.status, Status::BadComponent);
    EXPECT_TRUE(outcome.says("DllGetClassObject")) << outcome.message;
}

} // namespace zilvo
