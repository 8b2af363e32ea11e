#include "hosts/console/ChildProcess.h"
#include "hosts/console/Component.h"
#include "hosts/console/Gallery.h"
#include "hosts/console/Idl.h"
#include "hosts/console/Inspect.h"
#include "hosts/console/LineEditor.h"
#include "hosts/console/Output.h"
#include "hosts/console/Register.h"
#include "hosts/console/Registrations.h"
#include "hosts/console/ResourceFiles.h"
#include "hosts/console/Snapshot.h"
#include "hosts/console/lua/LuaHost.h"
#include "hosts/console/lua/Transcripts.h"
#include "hosts/console/validate/Validate.h"
#include "zilvo/platform/component/Components.h"
#include "zilvo/platform/component/Files.h"
#include "zilvo/platform/component/RegistrationStore.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <unistd.h>

namespace zilvo::console {

namespace {

using namespace platform;

struct CommandLine {
    std::filesystem::path component;
    std::filesystem::path registrations;
    std::filesystem::path file;      ///< to register, unregister or validate
    std::vector<std::string> script; ///< the file, then its arguments
    std::vector<std::string> transcripts;
    std::string className;
    std::vector<std::string> classNames;
    std::vector<std::string> resourceNames;
    std::filesystem::path directory;
    std::filesystem::path picture;
    unsigned timeout = 10; ///< seconds
    bool write = false;
    bool json = false;
    bool idl = false;
    bool repair = false;
};

int run(const CommandLine& given) {
    Components components;
    components.add(componentFile(given.component));
    LuaHost host(components);
    return host.run(given.script.front(), {given.script.begin() + 1, given.script.end()});
}

int repl(const CommandLine& given) {
    Components components;
    components.add(componentFile(given.component));
    LuaHost host(components);
    const bool isTyped = isatty(STDIN_FILENO) != 0;
    if (isTyped && isatty(STDOUT_FILENO) != 0) {
        LineEditor editor([&](std::string_view line) { return host.complete(line); });
        host.converse(editor);
    } else {
        StreamReader reader(std::cin, isTyped);
        host.converse(reader);
    }
    return 0;
}

int transcript(const CommandLine& given) {
    return playTranscripts({.files = given.transcripts,
                            .component = given.component,
                            .limit = std::chrono::seconds(given.timeout),
                            .write = given.write})
               ? 0
               : 1;
}

int list(const CommandLine&, const ComponentFile& component) {
    std::cout << classTable(component.description());
    return 0;
}

int describe(const CommandLine& given, const ComponentFile& component) {
    const ComponentDescription& description = component.description();
    const ClassEntry* only = given.className.empty() ? nullptr : &findClass(description, given.className);
    if (given.json)
        std::cout << console::description(description, only).dump(2) << '\n';
    else if (given.idl)
        std::cout << interfaceDefinition(description, only);
    else
        std::cout << descriptionText(description, only);
    return 0;
}

int inspect(const CommandLine& given, const LoadedComponent& component) {
    const ClassEntry& entry = findClass(component.description(), given.className);
    const Ref<Object> object = component.create(entry.identity.name);
    const Json tree = inspection(*object);
    std::cout << (given.json ? tree.dump(2) + "\n" : inspectionText(tree));
    return 0;
}

void snapshotOf(const ClassEntry& entry, const CommandLine& given, const LoadedComponent& component) {
    ControlHost host(component.create(entry.identity.name));
    host.open();
    writeFile(given.directory / (toUtf8(entry.identity.name) + ".svg"), svgOf(host));
}

/// What fails is told and does not keep the others from being written.
int snapshot(const CommandLine& given, const LoadedComponent& component) {
    makeFolder(given.directory);
    int status = 0;
    const auto attempt = [&](const auto& body) {
        try {
            body();
        } catch (const Failure& failure) {
            std::cerr << "zilvo: " << failure.what() << '\n';
            status = 1;
        }
    };
    for (const std::string& name : given.classNames) {
        if (sameName(toUtf16(name), u"all")) {
            for (const ClassEntry& entry : component.description().classes)
                if (entry.identity.isControl()) attempt([&] { snapshotOf(entry, given, component); });
        } else {
            attempt([&] { snapshotOf(findClass(component.description(), name), given, component); });
        }
    }
    return status;
}

int gallery(const CommandLine& given, const LoadedComponent& component) {
    writeFile(given.picture, galleryOf(component));
    return 0;
}

int resources(const CommandLine& given, const ComponentFile& component) {
    if (given.directory.empty())
        std::cout << resourceTable(component);
    else
        extractResources(component, given.resourceNames, given.directory);
    return 0;
}

int registerFile(const CommandLine& given) {
    std::cout << registerComponent(given.file);
    return 0;
}

int unregisterFile(const CommandLine& given) {
    std::cout << unregisterComponent(given.file);
    return 0;
}

int listRegistrations(const CommandLine& given) {
    if (given.repair) {
        repairRegistrations();
        return 0;
    }
    const Json all = registrations();
    std::cout << (given.json ? all.dump(2, ' ', false, Json::error_handler_t::replace) + "\n" : registrationsText(all));
    const auto isReadable = [](const Json& file) { return file.at("problem").is_null(); };
    const Json& files = all.at("files");
    return std::all_of(files.begin(), files.end(), isReadable) ? 0 : 1;
}

int validateFile(const CommandLine& given) {
    return validate(given.file, given.json, std::chrono::seconds(given.timeout)) ? 0 : 1;
}

using Command = int(const CommandLine& given);

/// A command on what a component file says, of which nothing is run.
template <int (*Does)(const CommandLine& given, const ComponentFile& component)>
int onFile(const CommandLine& given) {
    return Does(given, ComponentFile(componentFile(given.component)));
}

/// A command that runs a component's code, a fault in which does not end the program.
template <int (*Does)(const CommandLine& given, const LoadedComponent& component)>
int onComponent(const CommandLine& given) {
    const auto file = componentFile(given.component);
    return runComponent(file, [&] { return Does(given, LoadedComponent(file)); });
}

/// What can be given on the command line, and what was.
class Commands {
public:
    Commands() {
        app_.failure_message(CLI::FailureMessage::help);
        app_.require_subcommand(1);
        takeFiles(app_);
        addScripts();
        addDescriptions();
        addPictures();
        addComponents();
    }

    int parseAndRun(int argc, char** argv) {
        try {
            app_.parse(argc, argv);
        } catch (const CLI::RequiredError& error) { // also for a word that is no command
            return app_.remaining().empty() ? exit(error) : exit(CLI::ExtrasError(app_.remaining()));
        } catch (const CLI::ParseError& error) {
            return exit(error);
        }
        if (!given_.registrations.empty())
            setenv(RegistrationStore::EnvironmentVariable, given_.registrations.c_str(), 1);
        return command_(given_);
    }

private:
    /// Prints the help that was asked for, or what is wrong.
    int exit(const CLI::Error& error) const { return app_.exit(error) == EXIT_SUCCESS ? EXIT_SUCCESS : EXIT_FAILURE; }

    CLI::App& add(const char* name, const char* text, Command& does) {
        CLI::App* command = app_.add_subcommand(name, text);
        command->fallthrough();
        command->callback([this, &does] { command_ = &does; });
        return *command;
    }

    // Options that several commands take

    void takeFiles(CLI::App& where) {
        where
            .add_option("--component", given_.component,
                        "the component file, if not the one beside the program, a registered or the installed one")
            ->type_name("FILE");
        where
            .add_option("--registrations", given_.registrations,
                        "the registrations to use, the user's and the machine's aside")
            ->type_name("FILE")
            ->check([](const std::string& file) { return file.empty() ? "names no file" : std::string(); });
    }
    CLI::Option* takeClass(CLI::App& where, const char* text) {
        return where.add_option("class", given_.className, text)->type_name("CLASS");
    }
    CLI::Option* takeJson(CLI::App& where) { return where.add_flag("--json", given_.json, "as JSON"); }
    CLI::Option* takeDirectory(CLI::App& where) {
        return where.add_option("-o,--output", given_.directory, "where the files go")->type_name("DIR");
    }
    void takeTimeout(CLI::App& where, const std::string& text) {
        where.add_option("--timeout", given_.timeout, text + ", 10 unless given")
            ->type_name("SECONDS")
            ->check(CLI::Range(1U, 86400U));
    }
    void takeFile(CLI::App& where) {
        where.add_option("file", given_.file, "the component file")->type_name("FILE")->required();
    }

    void addScripts() {
        CLI::App& runs = add("run", "runs a host script: run FILE.lua [ARG...]", run);
        runs.prefix_command(); // all behind the script's name is the script's own
        runs.fallthrough(false);
        takeFiles(runs);
        runs.callback([this, &runs] {
            command_ = run;
            given_.script = runs.remaining();
            if (given_.script.empty()) throw CLI::RequiredError("FILE.lua");
        });
        CLI::App& plays =
            add("transcript", "plays transcripts and shows where what happens is not what is written", transcript);
        plays.add_option("files", given_.transcripts, "the transcripts")->type_name("FILE.lua")->required();
        plays.add_flag("--write", given_.write, "writes what is observed into them");
        takeTimeout(plays, "how long each statement may take");
        add("repl", "reads and runs statements from standard input, and shows the values of expressions", repl)
            .footer("At a terminal, Tab completes names, Ctrl-R searches the history, Ctrl-C drops what is typed or\n"
                    "ends what runs, and Ctrl-D ends the program; other keys can be given in ~/.editrc. The history\n"
                    "is in $XDG_STATE_HOME/zilvo/history, else ~/.local/state/zilvo/history.");
    }

    void addDescriptions() {
        add("list", "lists the classes: name, ProgID, class id", onFile<list>);

        CLI::App& describes = add("describe", "writes the type description", onFile<describe>);
        takeClass(describes, "one class only");
        describes.add_flag("--idl", given_.idl, "in the interface definition language")->excludes(takeJson(describes));

        CLI::App& inspects = add("inspect", "writes the widget tree of a fresh instance", onComponent<inspect>);
        takeClass(inspects, "the class")->required();
        takeJson(inspects);

        CLI::App& lists = add("resources", "lists the bitmaps, interface ids and version record, or extracts them",
                              onFile<resources>);
        lists.add_option("names", given_.resourceNames, "which ones, if not all")
            ->type_name("NAME")
            ->needs(takeDirectory(lists));
    }

    void addPictures() {
        CLI::App& snapshots = add("snapshot", "draws new instances into SVG files", onComponent<snapshot>);
        snapshots.add_option("classes", given_.classNames, "the classes, or all")->type_name("CLASS")->required();
        takeDirectory(snapshots)->required();

        add("gallery", "draws all controls into one SVG file", onComponent<gallery>)
            .add_option("picture", given_.picture, "the file")
            ->type_name("FILE.svg")
            ->required();
    }

    void addComponents() {
        takeFile(add("register", "registers a component, so that its classes are found by name", registerFile));
        takeFile(
            add("unregister", "takes a component, even one that is gone, out of the registrations", unregisterFile));

        CLI::App& lists = add("registrations", "lists what is registered, and what became of it", listRegistrations);
        lists
            .add_flag("--repair", given_.repair,
                      "takes out components that are gone, and sets a damaged file aside, instead of listing")
            ->excludes(takeJson(lists));

        CLI::App& validates = add("validate", "checks a component before it is trusted", validateFile);
        takeFile(validates);
        takeJson(validates);
        takeTimeout(validates, "how long each check may take");
    }

    CLI::App app_{"Hosts the controls of a component without a screen.", "zilvo"};
    CommandLine given_;
    Command* command_ = nullptr;
};

int start(int argc, char** argv) {
    Commands commands;
    return complaining([&] { return commands.parseAndRun(argc, argv); });
}

} // namespace

} // namespace zilvo::console

int main(int argc, char** argv) {
    zilvo::console::fillClosedStreams();
    // However the program ends: a script can end it, too.
    std::atexit([] {
        if (zilvo::console::flushed(EXIT_SUCCESS) != EXIT_SUCCESS) _exit(EXIT_FAILURE);
    });
    return zilvo::console::start(argc, argv);
}
