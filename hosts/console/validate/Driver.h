#pragma once

#include "hosts/console/validate/Checks.h"
#include "zilvo/platform/component/ControlHost.h"

#include <memory>
#include <string>
#include <vector>

namespace zilvo::console {

/// How checks reach a component: calls with what came of them, values to call with, and all that a host and its user
/// can do to an instance.

// Calls

/// What came of a call.
struct Answer {
    platform::Status status = platform::Status::Ok;
    platform::ErrorInfo error;
    platform::Variant result;
};

/// "0x800a0006 (overflow)", for an answer with its message.
std::string shown(platform::Status status);
std::string shown(const Answer& answer);
/// "720.5"
std::string shown(platform::Single number);

/// Runs a call that takes an ErrorInfo* and gives a status.
template <class Call>
Answer answerOf(const Call& call) {
    Answer answer;
    answer.status = call(&answer.error);
    return answer;
}
/// Runs a call that throws Failures.
Answer attempt(const std::function<void()>& call);

using Arguments = std::span<platform::Variant>;
template <class Which>
Answer invoke(platform::Object& object, const Which& idOrName, platform::Access how, Arguments arguments) {
    Answer answer;
    answer.status = object.Invoke(idOrName, how, arguments, &answer.result, &answer.error);
    return answer;
}

/// A failing call must say why.
bool expectMessage(Check& check, const Answer& answer);
bool expectStatus(Check& check, const Answer& answer, platform::Status expected);
inline bool expectOk(Check& check, const Answer& answer) {
    return expectStatus(check, answer, platform::Status::Ok);
}
/// Success, or a failure that says why.
bool expectClean(Check& check, const Answer& answer);

// Instances

std::string nameOf(const platform::ClassEntry& entry);
/// "ssOKCancel.Cancel"
std::string nameOf(const platform::Object& object, const platform::MemberDescription& member);

/// Published names are ASCII and compare without case.
platform::String lowerCase(platform::StringView name);

/// By class id; fails as the class factory does.
platform::Ref<platform::Object> createInstance(const platform::LoadedComponent& component,
                                               const platform::ClassEntry& entry);

/// Runs the body for each class. A Failure that it lets through is a finding, and the next class follows.
void forEachClass(Check& check, const platform::LoadedComponent& component,
                  const std::function<void(const platform::ClassEntry&)>& body);
/// The same for the controls among them; skips the check when there is none.
void forEachControl(Check& check, const platform::LoadedComponent& component,
                    const std::function<void(const platform::ClassEntry&)>& body);
/// The same with an object of each class, which is live when it is a control.
void forEachLiveObject(Check& check, const platform::LoadedComponent& component,
                       const std::function<void(platform::Object&)>& body);

// Values

using Values = std::vector<platform::Variant>;

/// A few values that any member of the type can be expected to meet. First comes the plainest: 0, False, an empty text
/// or array, the first value of an enumeration; last what is likely to do most.
Values usualValues(const platform::Type& type);
/// Values of every kind at the edge of what it holds; in an enumeration's place its values and their neighbours too.
Values extremeValues(const platform::Type& type);
/// A value that does not convert to the kind.
platform::Variant unconvertible(platform::Kind kind);

/// The plainest arguments of a method.
Values plainArguments(const platform::MemberDescription& member);
/// How the property is set; nothing for one that cannot be.
std::optional<platform::Access> accessToSet(const platform::MemberDescription& member);

// Deeds

/// Something that can be done to an instance as long as it lives.
struct Deed {
    std::string what;
    std::function<Answer()> run;
};
using Deeds = std::vector<Deed>;

/// The user's click on every widget that takes one, spins and menu items.
Deeds widgetDeeds(platform::Object& control);
/// Everything that a user can do: those clicks, the pointer everywhere, every key.
Deeds userDeeds(platform::Object& control);
/// Every property set and every method called with usual values.
Deeds memberDeeds(platform::Object& object);
/// The control gets other sizes and other ambient properties.
Deeds hostDeeds(platform::Object& control);
/// All of those.
Deeds allDeeds(platform::Object& control);

/// Does everything; each deed must succeed or say why not. What was done before is told with each finding.
void carryOut(Check& check, const Deeds& deeds, const std::string& before = {});
/// Whatever was done before, the object can be read and drawn.
void expectToLive(Check& check, platform::Object& object, const std::string& before);

} // namespace zilvo::console
