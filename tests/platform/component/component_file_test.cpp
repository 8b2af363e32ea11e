#include "tests/support/Files.h"

#include "zilvo/platform/component/ComponentFile.h"
#include "zilvo/platform/component/ComponentRuntime.h"

#include <cstring>
#include <elf.h>

namespace zilvo::platform {

namespace {

class ComponentFileTest : public FolderTest {
protected:
    /// What reading the file fails with: the message behind its name.
    std::string refusal() const {
        const auto [status, message] = outcomeOf([&] { const ComponentFile read(file); });
        if (status == Status::Ok) return "none";
        EXPECT_EQ(status, Status::BadComponent) << message;
        const std::string before = file.string() + " is not a component: at offset ";
        EXPECT_TRUE(message.starts_with(before)) << message;
        return message.substr(std::min(message.size(), before.size()));
    }
    std::string refusal(const std::string& content) const {
        write(file, content);
        return refusal();
    }

    const fs::path file = folder / "Broken.Ocx";
};

} // namespace

TEST(ComponentFile, SaysByteForByteWhatRuns) {
    for (const char* name : {COMPONENT_FILE, GALLERY_FILE}) {
        const ComponentFile file(name);
        const LoadedComponent component(name);
        const std::vector<Resource> running = resourcesOf(component.description());
        EXPECT_TRUE(std::ranges::equal(file.resources(), running)) << name;
        EXPECT_EQ(typeLibraryOf(file.description()), running.front().bytes) << "nothing is lost by reading it";
        const VersionRecord& version = component.description().version;
        EXPECT_EQ(file.description().version.version, version.version);
        EXPECT_EQ(versionResourceOf(file.description().version), versionResourceOf(version));
    }
}

TEST(ComponentFile, WhatIsOnlyDescribedCannotBeUsed) {
    const ComponentFile file(COMPONENT_FILE);
    const ClassEntry* pair = file.description().find(u"ssOKCancel");
    ASSERT_TRUE(pair);
    const LoadedComponent component(COMPONENT_FILE);
    const auto object = component.create(u"ssOKCancel");
    Variant result;
    const MemberDescription& member = pair->description.members.front();
    EXPECT_EQ(outcomeOf([&] { access(*object, member, Access::Get, {}, &result); }).status, Status::NotImplemented);
    EXPECT_EQ(outcomeOf([&] { pair->create(object->module()); }).status, Status::NotImplemented);
}

TEST_F(ComponentFileTest, WhatIsCutAlteredOrForeignIsRefusedWithTheOffset) {
    const std::string sound = contentOf(COMPONENT_FILE);
    const std::size_t section = sound.find("ZRES");
    ASSERT_NE(section, std::string::npos);
    EXPECT_EQ(refusal(""), "0: the file is empty");
    EXPECT_EQ(refusal("MZ and more"), "0: it is no loadable module");
    for (std::size_t length = 1; length < sound.size(); length += sound.size() / 97)
        EXPECT_NE(refusal(sound.substr(0, length)), "none") << length;

    const auto with = [&](std::size_t at, std::uint64_t value, unsigned size) {
        std::string content = sound;
        for (unsigned i = 0; i < size; ++i)
            content[at + i] = static_cast<char>(value >> (8 * i));
        return refusal(content);
    };
    EXPECT_EQ(with(EI_CLASS, ELFCLASS32, 1), "4: it is a module for a machine of another kind");
    EXPECT_EQ(with(offsetof(Elf64_Ehdr, e_machine), EM_S390, 2),
              "18: it is a module for a processor of another kind, number 22");
    EXPECT_EQ(with(offsetof(Elf64_Ehdr, e_type), ET_EXEC, 2), "16: it is a module of another kind");
    EXPECT_NE(with(offsetof(Elf64_Ehdr, e_shoff), ~0ULL - 64, 8).find("is cut short"), std::string::npos);
    EXPECT_NE(with(offsetof(Elf64_Ehdr, e_shnum), 0, 2), "none");

    EXPECT_NE(with(section, 0, 4).find("do not begin"), std::string::npos);
    EXPECT_EQ(with(section + 4, 9, 2), std::to_string(section + 6) + ": the resources have the format 9, not 1");
    for (std::size_t byte = section; byte < section + 30000; byte += 499) {
        std::string altered = sound;
        altered[byte] = static_cast<char>(altered[byte] ^ 1);
        EXPECT_NE(refusal(altered), "none") << byte - section;
    }
    EXPECT_EQ(with(section + 100, 0x55, 1),
              std::to_string(section + 14) + ": the resources were altered: their checksum is another");

    write(file, sound.substr(0, 64));
    fs::resize_file(file, 2ULL << 30U); // mostly a hole
    EXPECT_NE(refusal(), "none");
}

TEST(ComponentFile, NoTypeLibraryIsBelievedUnchecked) {
    const ComponentFile file(GALLERY_FILE);
    const Bytes sound = file.resources().front().bytes;
    const std::string name = "any";
    // Cut anywhere, or with any byte another: read to its end or refused, never followed where it leads nowhere.
    for (std::size_t length = 0; length < sound.size(); ++length)
        EXPECT_THROW(TypeLibrary(ByteReader(name, 0, std::span(sound).first(length)), file.description().version),
                     Failure)
            << length;
    std::size_t refused = 0;
    for (std::size_t at = 0; at < sound.size(); ++at) {
        Bytes altered = sound;
        altered[at] = 0xFF;
        const Outcome outcome = outcomeOf([&] {
            const TypeLibrary library(ByteReader(name, 0, altered), file.description().version);
            EXPECT_FALSE(typeLibraryOf(library.description()).empty());
        });
        EXPECT_TRUE(outcome.status == Status::Ok || outcome.status == Status::BadComponent) << outcome.message;
        refused += outcome.status == Status::Ok ? 0 : 1;
    }
    EXPECT_GT(refused, sound.size() / 10);
}

} // namespace zilvo::platform
