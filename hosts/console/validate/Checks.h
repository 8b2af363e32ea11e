#pragma once

#include "zilvo/platform/component/ComponentRuntime.h"

#include <functional>
#include <span>

namespace zilvo::console {

/// A check that runs: each word of what it does and finds goes out at once, so that nothing is lost when the component
/// ends the process.
class Check {
public:
    enum class Word : char { Step = 's', Failure = 'f', Warning = 'w', Skip = 'k', End = 'e' };
    using Tell = std::function<void(Word word, std::string_view text)>;

    explicit Check(Tell tell) : tell_(std::move(tell)) {}
    Check(const Check&) = delete;
    Check& operator=(const Check&) = delete;

    /// What is tried from now on: "ssOKCancel.Cancel, get". It is told with whatever is found, and with a crash.
    void step(std::string_view what) { tell_(Word::Step, what); }
    /// A failure unless the condition holds; gives the condition.
    bool expect(bool condition, std::string_view finding) {
        if (!condition) fail(finding);
        return condition;
    }
    void fail(std::string_view finding) { tell_(Word::Failure, finding); }
    void warn(std::string_view finding) { tell_(Word::Warning, finding); }
    /// The component has nothing to check here.
    void skip(std::string_view why) { tell_(Word::Skip, why); }
    /// The check's final word.
    void end() { tell_(Word::End, {}); }

private:
    Tell tell_;
};

struct NamedCheck {
    const char* name;
    void (*run)(Check& check, platform::LoadedComponent& component);
};

/// All checks, in the order of the report. Each runs on a component that was loaded for it alone; the first is that it
/// loads at all.
std::span<const NamedCheck> validationChecks();

/// What the checks do. Those of one group stand in one source file.
namespace checks {

using platform::LoadedComponent;

// ComponentChecks.cpp: the file, its class factories and how it registers itself
void loads(Check& check, LoadedComponent& component);
void fileAndRuntime(Check& check, LoadedComponent& component);
void classFactories(Check& check, LoadedComponent& component);
void unknownClasses(Check& check, LoadedComponent& component);
void staysLoadedInUse(Check& check, LoadedComponent& component);
void registration(Check& check, LoadedComponent& component);
void unloads(Check& check, LoadedComponent& component);

// IdentityChecks.cpp: what it publishes
void identifiers(Check& check, LoadedComponent& component);
void names(Check& check, LoadedComponent& component);
void controlsAndOthers(Check& check, LoadedComponent& component);
void membersAndEvents(Check& check, LoadedComponent& component);
void enumerations(Check& check, LoadedComponent& component);
void instanceDescriptions(Check& check, LoadedComponent& component);
void resources(Check& check, LoadedComponent& component);

// MemberChecks.cpp: properties and methods
void properties(Check& check, LoadedComponent& component);
void methods(Check& check, LoadedComponent& component);
void wrongCalls(Check& check, LoadedComponent& component);
void extremeArguments(Check& check, LoadedComponent& component);
void membersWithoutSite(Check& check, LoadedComponent& component);

// ControlChecks.cpp: what a host drives
void lifecycle(Check& check, LoadedComponent& component);
void sizes(Check& check, LoadedComponent& component);
void painting(Check& check, LoadedComponent& component);
void ambientProperties(Check& check, LoadedComponent& component);
void settingsRoundTrip(Check& check, LoadedComponent& component);
void hostileSettings(Check& check, LoadedComponent& component);
void failingSettings(Check& check, LoadedComponent& component);

// EventChecks.cpp: events and their handlers
void eventConnections(Check& check, LoadedComponent& component);
void eventsRaised(Check& check, LoadedComponent& component);
void closingHandlers(Check& check, LoadedComponent& component);
void callingHandlers(Check& check, LoadedComponent& component);
void failingHandlers(Check& check, LoadedComponent& component);
void disconnectingHandlers(Check& check, LoadedComponent& component);

} // namespace checks

} // namespace zilvo::console
