#include "zilvo/library/ZilvoButtons.h"
#include "zilvo/platform/component/ComponentRuntime.h"
#include "zilvo/platform/component/ControlHost.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace zilvo {

namespace {

using Accesses = std::vector<Access>;

const Accesses ReadWrite = {Access::Get, Access::Put};
const Accesses Read = {Access::Get};
const Accesses ReadReference = {Access::Get, Access::PutReference};
const Accesses Called = {Access::Method};

/// What hosts were compiled against, in published order: neither an id nor a name ever changes.
struct PublishedMember {
    StringView className;
    StringView name;
    MemberId id;
    const Accesses& accesses;
};
const std::vector<PublishedMember> published = {
    {u"GamingCardSelection", u"SelectThisButton", 0x60030003, Called},
    {u"ssOKCancel", u"CancelToolTipText", 0x68030006, ReadWrite},
    {u"ssOKCancel", u"Cancel", 0x68030005, ReadWrite},
    {u"ssOKCancel", u"Default", 0x68030004, ReadWrite},
    {u"ssOKCancel", u"ItalicCancel", 0x68030003, ReadWrite},
    {u"ssOKCancel", u"ItalicOK", 0x68030002, ReadWrite},
    {u"ssOKCancel", u"OKEnabled", 0x68030001, ReadWrite},
    {u"ssOKCancel", u"OKToolTipText", 0x68030000, ReadWrite},
    {u"ssOKCancel", u"SetDefaultDefaults", 0x60030009, Called},
    {u"StartStopButtons", u"Reset", 0x60030006, Called},
    {u"StartStopButtons", u"SetupForStarting", 0x60030007, Called},
    {u"StartStopButtons", u"StartButtonToolTip", 0x68030001, ReadWrite},
    {u"StartStopButtons", u"StopButtonToolTip", 0x68030000, ReadWrite},
    {u"PlayerButtons", u"SelectButton", 0x60030001, Called},
    {u"PlayerButtons", u"SetupTheRadioButtons", 0x60030002, Called},
    {u"CardShufflingOptions", u"CardShuffleMethod", 0x68030000, ReadWrite},
    {u"PlusMinusButton", u"PlusMinusButtonIs", 0x68030000, Read},
    {u"PlusMinusButton", u"RestartYourself", 0x60030002, Called},
    {u"LetterButton", u"Letter", 0x68030002, ReadWrite},
    {u"LetterButton", u"LetterLeft", 0x68030001, ReadWrite},
    {u"LetterButton", u"LetterTop", 0x68030000, ReadWrite},
    {u"SpreadSeatButtons", u"AvailableSeatsAre", 0x60030001, Called},
    {u"SpreadSeatButtons", u"NumberOfSeatsAllowed", 0x68030000, ReadWrite},
    {u"paneledGOButton", u"GOButtonShape", 0x68030000, ReadWrite},
    {u"GOButton", u"GOButtonShape", 0x68030000, ReadWrite},
    {u"SitDownButton", u"AvailableSeatsAre", 0x60030001, Called},
    {u"SitDownButton", u"NumberOfSeatsAllowed", 0x68030000, ReadWrite},
    {u"SeatCheckBoxes", u"AvailableSeatsAre", 0x60030001, Called},
    {u"SeatCheckBoxes", u"MySeatIS", 0x60030003, Called},
    {u"SeatCheckBoxes", u"NumberOfSeatsAllowed", 0x68030000, ReadWrite},
    {u"ZilvoButtonGoodies", u"SeatBitIsNotSet", 0x60030000, Called},
    {u"ZilvoButtonGoodies", u"SeatBitIsSet", 0x60030001, Called},
    {u"ZilvoButtonGoodies", u"SeatBitReset", 0x60030002, Called},
    {u"ZilvoButtonGoodies", u"SeatBitSet", 0x60030003, Called},
    {u"ZilvoButtonGoodies", u"SeatBitToggle", 0x60030004, Called},
    {u"paneledSeatBoxes", u"AvailableSeatsAre", 0x60030002, Called},
    {u"paneledSeatBoxes", u"DoneButtonIsVisible", 0x68030001, ReadWrite},
    {u"paneledSeatBoxes", u"MySeatIS", 0x60030004, Called},
    {u"paneledSeatBoxes", u"NumberOfSeatsAllowed", 0x68030000, ReadWrite},
    {u"SpinCounter", u"AllowNegNumbers", 0x68030007, ReadWrite},
    {u"SpinCounter", u"ControlHandedness", 0x68030006, ReadWrite},
    {u"SpinCounter", u"CounterValue", 0x68030005, ReadWrite},
    {u"SpinCounter", u"Font", 0x68030004, ReadReference},
    {u"SpinCounter", u"MaximumLimit", 0x68030003, ReadWrite},
    {u"SpinCounter", u"NumberWrap", 0x68030001, ReadWrite},
    {u"SpinCounter", u"ResetSizeToDefault", 0x6003000c, Called},
    {u"SpinCounter", u"UseDefaultSize", 0x68030000, ReadWrite},
    {u"DeckButtons", u"NumberOfDecks", 0x68030001, ReadWrite},
    {u"DeckButtons", u"ObjectWidth", 0x68030000, ReadWrite},
    {u"DeckButtons", u"ResetButtons", 0x60030006, Called},
    {u"verticalOK", u"Caption", 0x68030001, ReadWrite},
    {u"verticalOK", u"Font", 0x68030000, ReadWrite},
};

/// Something of the kind that a member of the library accepts.
Variant sampleOf(const Type& type) {
    switch (type.kind) {
    case Kind::Boolean:
        return true;
    case Kind::Integer:
        return Integer{4};
    case Kind::Long:
        return Long{2};
    case Kind::Single:
        return Single{30};
    case Kind::String:
        return u"Q";
    case Kind::Font:
        return std::make_shared<StdFont>(FontDesign{.Name = u"Arial"});
    case Kind::BooleanArray:
        return BooleanArray(1, {true, false, true, true, false, true, true});
    default:
        return {};
    }
}

/// A live control, or an object that is no control.
struct Instance {
    explicit Instance(const LoadedComponent& component, StringView className) : object(component.create(className)) {
        if (!object->hostedControl()) return;
        host = std::make_unique<ControlHost>(object);
        host->open();
    }
    Ref<Object> object;
    std::unique_ptr<ControlHost> host;
};

/// What a call gives: its status, its result and what it leaves in its arguments.
struct Outcome {
    Status status = Status::Ok;
    Variant result;
    std::vector<Variant> arguments;

    friend bool operator==(const Outcome& one, const Outcome& other) {
        return one.status == other.status && equalByValue(one.result, other.result) &&
               std::ranges::equal(one.arguments, other.arguments, equalByValue);
    }
};

/// By id or by name.
template <class Which>
Outcome outcomeOf(Object& object, const Which& which, const MemberDescription& member, Access how) {
    Outcome outcome;
    if (how != Access::Get)
        for (const ArgumentDescription& argument : member.arguments())
            outcome.arguments.push_back(sampleOf(argument.type));
    outcome.status = object.Invoke(which, how, outcome.arguments, &outcome.result);
    return outcome;
}

} // namespace

TEST(PublishedMembers, AreReachedByIdAndGiveWhatTheNameGives) {
    const LoadedComponent component(COMPONENT_FILE);
    auto next = published.begin();
    for (const ClassEntry& entry : component.description().classes)
        for (const MemberDescription& member : entry.description.members) {
            ASSERT_NE(next, published.end());
            SCOPED_TRACE(toUtf8(next->className) + "." + toUtf8(next->name));
            EXPECT_EQ(entry.identity.name, next->className);
            EXPECT_EQ(member.name, next->name);
            EXPECT_EQ(member.id, next->id);
            for (const Access how : {Access::Get, Access::Put, Access::PutReference, Access::Method}) {
                const bool isPublished = std::ranges::count(next->accesses, how) > 0;
                EXPECT_EQ(member.accessor(how) != nullptr, isPublished) << nameOf(how);
                if (!isPublished) continue;
                const Instance calledById(component, entry.identity.name);
                const Instance calledByName(component, entry.identity.name);
                const Outcome byId = outcomeOf(*calledById.object, next->id, member, how);
                EXPECT_EQ(byId.status, Status::Ok) << nameOf(how);
                EXPECT_EQ(byId, outcomeOf(*calledByName.object, next->name, member, how)) << nameOf(how);
                EXPECT_EQ(byId.result.kind(),
                          how == Access::Put || how == Access::PutReference ? Kind::Empty : member.type.kind);
                if (next->accesses.front() == Access::Get) {
                    EXPECT_EQ(outcomeOf(*calledById.object, next->id, member, Access::Get),
                              outcomeOf(*calledByName.object, next->id, member, Access::Get))
                        << "after " << nameOf(how);
                }
            }
            ++next;
        }
    EXPECT_EQ(next, published.end());
}

TEST(Identity, EnumerationNamesAreReadOffTheEnumerators) {
    const auto& casino = descriptionOf(CasinoDeckDefaults{});
    EXPECT_EQ(casino.members.front().name, u"deckDefaultResetDecks");
    EXPECT_EQ(casino.members[9].name, u"deckdefaultAustrailia");
    EXPECT_EQ(casino.members[9].value, 80);
    EXPECT_EQ(descriptionOf(SpinCounterPossibilities{}).members[1].name, u"RighHandSpinCounter");
}

} // namespace zilvo
