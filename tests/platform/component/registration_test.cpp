#include "tests/support/Files.h"

#include "zilvo/library/ZilvoButtons.h"
#include "zilvo/platform/component/Components.h"
#include "zilvo/platform/component/RegistrationStore.h"
#include "zilvo/platform/component/RegistrationText.h"

#include <cstdlib>
#include <dlfcn.h>
#include <sys/stat.h>
#include <sys/wait.h>

namespace zilvo {

namespace {

Guid guid(std::uint32_t number) {
    return {.data1 = number};
}

/// A component with a type library of that number and one class and interface for each of `classes`.
Registration component(const fs::path& file, std::uint32_t library, const std::vector<std::uint32_t>& classes) {
    Registration made{
        file, Registration::TypeLibrary{guid(library), u"Lib", "1.0", 0, u"", u"", u"control library"}, {}, {}};
    for (const auto number : classes) {
        made.classes.push_back({guid(number), u"C", u"Lib.C", guid(library), "1.0", true, Integer{30000}, 0x20191U});
        made.interfaces.push_back({guid(number + 1000), u"_C", guid(library), "1.0"});
    }
    return made;
}

std::vector<std::uint32_t> classesOf(const Registration& registration) {
    std::vector<std::uint32_t> numbers;
    for (const auto& each : registration.classes)
        numbers.push_back(each.classId.data1);
    return numbers;
}

/// A store of its own for each test, which the environment names.
class RegistrationTest : public FolderTest {
protected:
    RegistrationTest() { setenv(RegistrationStore::EnvironmentVariable, file.c_str(), 1); }

    /// Whether something was registered for the file.
    bool remove(const fs::path& component) { return !store.remove({component, {}, {}, {}}).empty(); }

    const fs::path file = folder / "registrations";
    RegistrationStore store{file};
};

} // namespace

TEST_F(RegistrationTest, WhatAComponentRegisters) {
    const Registration made = registrationOf(libraryModule().description(), folder / "below/../Z.Ocx");
    EXPECT_EQ(made.file, folder / "Z.Ocx");
    EXPECT_EQ(made.library->version, "10.0");
    EXPECT_EQ(made.library->locale, 0);
    ASSERT_EQ(made.classes.size(), 18U);
    EXPECT_EQ(made.classes[1].progId, u"ZILVO_ZilvoButtons.ssOKCancel");
    EXPECT_FALSE(made.classes[12].isControl) << "ZilvoButtonGoodies";
    EXPECT_EQ(made.interfaces.size(), 35U);

    store.add(made);
    const std::string text = contentOf(file);
    for (const char* line :
         {"zilvo registrations, format 1\n", "\nlocale = 0\n", "\nhelp directory =\n", "\nflags = control library\n",
          "\nname = _ssOKCancel\n", "\nname = __ssOKCancel\n", "\nmisc status = 0x00021191\n"})
        EXPECT_NE(text.find(line), std::string::npos) << line;
    EXPECT_NE(text.find("\ntoolbox bitmap = " + made.file.string() + ", 30015\n"), std::string::npos);
    EXPECT_NE(text.find("\n[class]\nid = {607830C0-E548-41C2-9908-FE2A0C329D84}\nname = verticalOK\n"
                        "ProgID = ZILVO_ZilvoButtons.verticalOK\nserver = " +
                        made.file.string() + "\ntype library = "),
              std::string::npos)
        << text;
}

TEST_F(RegistrationTest, AnyPathAndTextComesBack) {
    Registration plain = component(folder / "Plain.Ocx", 1, {1});
    plain.library->helpString = u" \u2660 \\x41 = [x]\nend ";
    store.add(plain);
    store.add(component(folder / " a\\b\n[c] = \xFF\xC3 \xC3\xA9\x7F, 1 ", 2, {2}));
    store.add(component(folder / "\xC3\xA9", 3, {}));
    const auto read = store.read();
    ASSERT_EQ(read.size(), 3U);
    EXPECT_EQ(read[0], plain);
    EXPECT_EQ(read[1], component(folder / " a\\b\n[c] = \xFF\xC3 \xC3\xA9\x7F, 1 ", 2, {2}));
    EXPECT_TRUE(store.find(folder / "\xC3\xA9"));
    EXPECT_EQ(toUtf8(toUtf16(contentOf(file))), contentOf(file)) << "the store is UTF-8";
    EXPECT_NE(contentOf(file).find("\\x7F"), std::string::npos) << "without control characters";
}

TEST_F(RegistrationTest, TwiceIsOnce) {
    EXPECT_FALSE(remove(folder / "A.Ocx"));
    EXPECT_TRUE(fs::is_empty(folder)) << "nothing to forget, nothing to write";
    store.add(component(folder / "A.Ocx", 1, {1}));
    store.add(component(folder / "B.Ocx", 2, {2}));
    struct stat before {
    }, after{};
    ASSERT_EQ(stat(file.c_str(), &before), 0);
    store.add(component(folder / "A.Ocx", 1, {1}));
    EXPECT_FALSE(remove(folder / "C.Ocx"));
    ASSERT_EQ(stat(file.c_str(), &after), 0);
    EXPECT_EQ(before.st_ino, after.st_ino) << "not even written anew";
    EXPECT_TRUE(remove(folder / "A.Ocx"));
    EXPECT_FALSE(remove(folder / "A.Ocx"));
    EXPECT_EQ(store.read(), std::vector{component(folder / "B.Ocx", 2, {2})});
}

TEST_F(RegistrationTest, ANewcomerTakesOverWhatItRegistersToo) {
    store.add(component(folder / "A.Ocx", 1, {1, 2}));
    store.add(component(folder / "B.Ocx", 2, {3}));
    store.add(component(folder / "C.Ocx", 1, {2, 3}));
    store.add(component(folder / "D.Ocx", 2, {}));
    auto read = store.read();
    ASSERT_EQ(read.size(), 3U) << "B has nothing left";
    EXPECT_FALSE(read[0].library);
    EXPECT_EQ(classesOf(read[0]), std::vector{1U});
    EXPECT_EQ(read[0].interfaces.size(), 1U);
    EXPECT_EQ(read[0].classes[0].libraryId, guid(1));

    EXPECT_TRUE(remove(folder / "C.Ocx"));
    read = store.read();
    ASSERT_EQ(read.size(), 2U);
    EXPECT_EQ(classesOf(read[0]), std::vector{1U}) << "what was taken over is nobody's now";

    store.add(component(folder / "A.Ocx", 3, {4}));
    read = store.read();
    EXPECT_EQ(classesOf(read[1]), std::vector{4U}) << "the same file anew";

    // What could not be read again is not written.
    const auto whole = contentOf(file);
    const auto doubled = outcomeOf([&] { store.add(component(folder / "E.Ocx", 5, {6, 6})); });
    EXPECT_TRUE(doubled.says("stands twice")) << doubled.message;
    EXPECT_EQ(contentOf(file), whole);
}

TEST_F(RegistrationTest, ADamagedStoreIsRefusedWithItsLineAndLeftAlone) {
    store.add(component("/A.Ocx", 1, {1}));
    store.add(component("/B.Ocx", 2, {2}));
    const std::string whole = contentOf(file);
    const std::string id = "id = " + guid(1).text();
    struct Damage {
        std::string from;
        std::string to; ///< in place of the first `from`
        int line;
        std::string_view says;
    };
    const Damage damages[] = {
        {"format 1", "format 2", 1, "newer version"},
        {"format 1", "format one", 1, "does not begin"},
        {whole, "", 1, "does not begin"},
        {"\nend\n", "\n", 62, "cut short"},
        {"\nend\n", "\nend", 63, "cut short"},
        {"\nend\n", "\nend\n\n", 64, "cut short"},
        {"[class]", "[klass]", 16, "no section [klass]"},
        {"[component]\nfile = /A.Ocx\n", "", 4, "before any [component]"},
        {"[class]", "[type library]", 16, "second type library"},
        {"[class]", "class", 16, "neither"},
        {"locale = 0", "locale=0", 10, "neither"},
        {"help directory =", "help directory = ", 12, "neither"},
        {"name = Lib", "name = Lib ", 8, "neither"},
        {"name = Lib", "name = Lib\\n", 8, "neither"},
        {"name = Lib", "name = Lib\\x4", 8, "neither"},
        {"name = Lib", "name = L\\x69b", 8, "neither"},
        {"name = Lib", "name = \\xFF", 8, "malformed"},
        {"name = Lib", "colour = Lib", 6, "lacks the key \"name\""},
        {"name = Lib", "name = Lib\ncolour = red", 9, "no key \"colour\""},
        {"name = Lib", "name = Lib\nname = Lib", 9, "\"name\" stands twice"},
        {"version = 1.0", "version = 1", 9, "malformed"},
        {"version = 1.0", "version =", 9, "malformed"},
        {"locale = 0", "locale = 00", 10, "malformed"},
        {"path = /A.Ocx", "path = /C.Ocx", 14, "is not \"/A.Ocx\""},
        {"file = /A.Ocx", "file = A.Ocx", 4, "malformed"},
        {"file = /B.Ocx", "file = /A.Ocx", 34, "stands twice"},
        {id, "id = {00000001}", 7, "malformed"},
        {id, "id = " + guid(1).text().substr(1, 36), 7, "malformed"},
        {"id = " + guid(2).text(), id, 37, "stands twice"},
        {"control = yes", "control = no", 23, "is not \"yes\""},
        {"control = yes\n", "", 23, "no key \"toolbox bitmap\""},
        {"/A.Ocx, 30000", "/B.Ocx, 30000", 24, "malformed"},
        {"/A.Ocx, 30000", "/A.Ocx, ", 24, "neither"},
        {"misc status = 0x00020191\n", "", 16, "lacks the key \"misc status\""},
        {"0x00020191", "0x20191", 25, "malformed"},
    };
    for (const Damage& damage : damages) {
        std::string damaged = whole;
        ASSERT_NE(damaged.find(damage.from), std::string::npos) << damage.from;
        write(file, damaged.replace(damaged.find(damage.from), damage.from.size(), damage.to));
        for (const auto& outcome : {outcomeOf([&] { store.read(); }), outcomeOf([&] { remove("/A.Ocx"); }),
                                    outcomeOf([&] { store.add(component("/C.Ocx", 3, {})); })}) {
            EXPECT_EQ(outcome.status, Status::RegistrationsUnreadable) << damage.to;
            EXPECT_TRUE(outcome.says(file.string() + ", line " + std::to_string(damage.line) + ": "))
                << outcome.message;
            EXPECT_TRUE(outcome.says(damage.says)) << outcome.message;
        }
        EXPECT_EQ(contentOf(file), damaged);
    }
    // Cut short anywhere.
    for (std::size_t length = 0; length < whole.size(); length += 7) {
        write(file, whole.substr(0, length));
        EXPECT_EQ(outcomeOf([&] { store.read(); }).status, Status::RegistrationsUnreadable) << length;
    }
}

TEST(Registrations, AreReadInTimeThatGrowsWithTheirText) {
    const auto start = std::chrono::steady_clock::now();
    std::string keys;
    for (int key = 0; key < 50'000; ++key)
        keys += "key " + std::to_string(key) + " = 1\n";
    std::string ids;
    for (std::uint32_t id = 0; id < 10'000; ++id)
        ids += "[interface]\nid = " + guid(id).text() + "\nname = C\ntype library = " + guid(0).text() +
               "\nversion = 1.0\n";
    const std::string longPath =
        "zilvo registrations, format 1\n[component]\nfile = /" + std::string(1'000'000, 'p') + "\n";
    EXPECT_EQ(registrationsIn(longPath + ids + "end\n", "").at(0).interfaces.size(), 10'000U);
    EXPECT_THROW(registrationsIn(longPath + keys + "end\n", ""), DamagedRegistrations);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10)) << "it takes more than linear time";
}

TEST_F(RegistrationTest, WhereItCannotBeReadOrWritten) {
    const auto adds = [&](const fs::path& where) {
        return outcomeOf([&] { RegistrationStore(where).add(component("/A.Ocx", 1, {1})); });
    };
    EXPECT_EQ(adds(folder).message, "the registrations in " + folder.string() + " cannot be read: it is no file");
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    EXPECT_EQ(adds(folder / "pipe").status, Status::RegistrationsUnreadable);
    fs::create_symlink("circle", folder / "circle");
    EXPECT_EQ(adds(folder / "circle").status, Status::RegistrationsUnreadable);

    store.add(component("/B.Ocx", 2, {2}));
    const std::string whole = contentOf(file);
    const fs::path lock = folder / "registrations.lock";
    fs::remove(lock);
    ASSERT_EQ(mkfifo(lock.c_str(), 0600), 0);
    EXPECT_EQ(adds(file).message, lock.string() + " cannot be written: it is no file");
    EXPECT_EQ(adds(file / "below").status, Status::RegistrationsUnreadable);
    for (const fs::path& readOnly : {file, folder}) {
        const auto usual = fs::status(readOnly).permissions();
        fs::remove(lock);
        fs::permissions(readOnly, fs::perms::owner_read | fs::perms::owner_exec);
        const Outcome outcome = adds(file);
        EXPECT_EQ(outcome.status, Status::RegistrationsUnwritable);
        EXPECT_TRUE(outcome.says(readOnly.string() + " cannot be written: it is read-only")) << outcome.message;
        store.add(component("/B.Ocx", 2, {2})); // which changes nothing
        fs::permissions(readOnly, usual);
    }
    EXPECT_EQ(contentOf(file), whole);
}

TEST_F(RegistrationTest, ManyProcessesAtOnceLoseNothing) {
    constexpr std::uint32_t Processes = 8;
    constexpr std::uint32_t Each = 8;
    std::vector<pid_t> children;
    for (std::uint32_t process = 0; process < Processes; ++process) {
        children.push_back(inChild([&] {
            for (std::uint32_t i = process * Each + 1; i <= (process + 1) * Each; ++i)
                store.add(component("/" + std::to_string(i), i, {i}));
        }));
    }
    for (const pid_t child : children) {
        int status = -1;
        waitpid(child, &status, 0);
        EXPECT_EQ(status, 0);
    }
    EXPECT_EQ(store.read().size(), Processes * Each);
}

TEST_F(RegistrationTest, TheUsualPlace) {
    struct Place {
        const char* named;
        const char* data;
        const char* home;
        const char* expected; ///< null for a failure
        const char* complaint = "HOME";
    };
    const std::string oldHome = getenv("HOME") ? getenv("HOME") : "";
    const auto set = [](const char* name, const char* value) { value ? setenv(name, value, 1) : unsetenv(name); };
    for (const Place& place :
         {Place{"/r", "/d", "/h", "/r"}, Place{"", "/d", "/h", nullptr, "names no file"},
          Place{nullptr, "/d", "/h", "/d/zilvo/registrations"},
          Place{nullptr, "d", "/h", "/h/.local/share/zilvo/registrations"},
          Place{nullptr, "", "/h", "/h/.local/share/zilvo/registrations"}, Place{nullptr, nullptr, nullptr, nullptr},
          Place{nullptr, "d", "", nullptr}, Place{nullptr, nullptr, "h", nullptr}}) {
        set("ZILVO_REGISTRATIONS", place.named);
        set("XDG_DATA_HOME", place.data);
        set("HOME", place.home);
        const auto outcome = outcomeOf([&] { EXPECT_EQ(RegistrationStore().file(), place.expected); });
        EXPECT_EQ(outcome.says(place.complaint), !place.expected) << outcome.message;
    }
    set("HOME", oldHome.c_str());
}

TEST_F(RegistrationTest, AComponentKnowsItsFileWhereverItsHostGoes) {
    const auto before = std::filesystem::current_path();
    const std::filesystem::path component = COMPONENT_FILE;
    std::filesystem::current_path(component.parent_path());
    void* library = dlopen(("./" + component.filename().string()).c_str(), RTLD_NOW);
    std::filesystem::current_path(before);
    ASSERT_NE(library, nullptr);
    const auto registerServer = reinterpret_cast<RegistrationEntry*>(dlsym(library, "DllRegisterServer"));
    EXPECT_EQ(registerServer(), 0U) << takeRegistrationError().message;
    EXPECT_TRUE(store.find(component));
    dlclose(library);
}

TEST_F(RegistrationTest, TheEntryPointsOfBothComponents) {
    for (const char* each : {COMPONENT_FILE, GALLERY_FILE}) {
        const LoadedComponent loaded(each);
        loaded.registerServer();
        EXPECT_EQ(store.find(each), registrationOf(loaded.description(), each));
        EXPECT_EQ(store.find(each), registrationOf(ComponentFile(each).description(), each)) << "without running it";
    }
    fs::copy_file(GALLERY_FILE, folder / "Moved.Ocx");
    const LoadedComponent gallery(GALLERY_FILE);
    const LoadedComponent moved(folder / "Moved.Ocx");
    moved.unregisterServer();
    moved.unregisterServer();
    EXPECT_FALSE(store.find(GALLERY_FILE));
    EXPECT_EQ(store.read().size(), 1U);

    fs::permissions(file, fs::perms::owner_read);
    const Outcome refused = outcomeOf([&] { gallery.registerServer(); });
    EXPECT_EQ(refused.status, Status::RegistrationsUnwritable);
    EXPECT_TRUE(refused.says("Gallery: " + file.string() + " cannot be written")) << refused.message;

    void* library = dlopen(GALLERY_FILE, RTLD_NOW);
    auto* entry = reinterpret_cast<RegistrationEntry*>(dlsym(library, "DllRegisterServer"));
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(entry(), static_cast<std::uint32_t>(Status::RegistrationsUnwritable));
    EXPECT_EQ(takeRegistrationError().message, refused.message);
    EXPECT_EQ(takeRegistrationError().message, "");
    dlclose(library);
}

TEST_F(RegistrationTest, ComponentsSayWhyTheyCannotCreate) {
    const fs::path broken = folder / "Broken.Ocx";
    write(broken, "a text");
    store.add(component(broken, 1, {1}));
    Components components;
    struct Case {
        fs::path file;
        Status status;
        std::string_view says;
    };
    const auto creates = [&] { return outcomeOf([&] { components.create(u"Lib.C"); }); };
    for (const Case& each : {Case{broken, Status::BadComponent, "Broken.Ocx is not a component"},
                             Case{folder / "Gone.Ocx", Status::FileNotFound, "there is no component file"},
                             Case{COMPONENT_FILE, Status::ClassNotAvailable, "does not have it"}}) {
        store.add(component(each.file, 1, {1}));
        const Outcome outcome = creates();
        EXPECT_EQ(outcome.status, each.status);
        EXPECT_TRUE(outcome.says("Lib.C") && outcome.says(file.string()) && outcome.says(each.says)) << outcome.message;
    }
    fs::remove(file);
    EXPECT_EQ(creates().status, Status::ClassNotAvailable);
    write(file, "damaged");
    EXPECT_EQ(creates().status, Status::RegistrationsUnreadable);
    EXPECT_EQ(components.create(u"DeckButtons")->description().name, u"DeckButtons") << "of a loaded one, all the same";
}

} // namespace zilvo
