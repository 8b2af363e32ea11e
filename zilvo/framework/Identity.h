#pragma once

#include "zilvo/framework/Platform.h"

namespace zilvo {

/// Who the library and its classes are to a host: fixed, published identifiers, as pure data. Member ids stand with the
/// members of each class.

inline constexpr LibraryIdentity libraryIdentity{
    .name = u"ZILVO_ZilvoButtons",
    .id = "{78BA38B1-7CB9-47F3-A24F-FD60854497AE}"_guid,
    .majorVersion = 10,
    .minorVersion = 0,
    .locale = 1033,
    .helpString = u"ZILVO: Button Objects (4.45) --- Version 3.0x - 02-23-2009",
    .flags = libraryflags::Control,
};

inline constexpr std::array<VersionString, 7> versionStrings = {{
    {u"Comments", u"Zilvo for Blackjack - Button Controls"},
    {u"ProductName", libraryIdentity.name},
    {u"FileVersion", u"3.00.0004"},
    {u"ProductVersion", u"3.00.0004"},
    {u"InternalName", u"ZilvoButtons-445"},
    {u"OriginalFilename", u"ZilvoButtons-445.Ocx"},
    {u"OLESelfRegister", u""}, // its presence says that the component can register itself
}};
inline constexpr VersionRecord versionRecord{.version = {3, 0, 0, 4}, .strings = versionStrings};

/// Misc status bits: how a host may treat a control.
enum MiscStatus : std::uint32_t {
    RecomposeOnResize = 0x1,      ///< draws itself anew when its size changes
    CantLinkInside = 0x10,        ///< no link can lead into it
    InsideOut = 0x80,             ///< can be active in place while others are, too
    ActivateWhenVisible = 0x100,  ///< is active whenever it is visible
    ActsLikeButton = 0x1000,      ///< counts as a push button
    SetClientSiteFirst = 0x20000, ///< gets its site before its settings
};
inline constexpr std::uint32_t ControlStatus =
    RecomposeOnResize | CantLinkInside | InsideOut | ActivateWhenVisible | SetClientSiteFirst;
inline constexpr std::uint32_t ButtonStatus = ControlStatus | ActsLikeButton;

/// In the order of the type library.
inline constexpr std::array<ClassIdentity, 18> classIdentities = {{
    {u"GamingCardSelection", "{E1430C9B-A445-4BF3-917C-67D6A27A0D2B}"_guid,
     "{6C3D59A8-9D53-4F2B-A6ED-2451BB79FAA9}"_guid, "{7D794B21-9F97-4E9C-BD8A-59DEB6D622F8}"_guid, 30016,
     ControlStatus},
    {u"ssOKCancel", "{F183CFF5-42C5-44A4-958C-928E204EBE8B}"_guid, "{38217C95-6310-4F1C-BA9F-B9205B4221C4}"_guid,
     "{E7017035-52B4-459F-B3B8-616D53BC5580}"_guid, 30015, ButtonStatus},
    {u"StartStopButtons", "{162950EC-756A-48EF-9D27-B1C9B17DD001}"_guid, "{9EE4751B-72D3-4CF9-A47F-49223870F154}"_guid,
     "{9A630CBE-2015-48A4-85FF-B9BA8FAA706B}"_guid, 30014, ButtonStatus},
    {u"PlayerButtons", "{DF672E94-61CD-4BCF-8EB9-970ECCC71FE2}"_guid, "{1F3F403C-57EB-43B8-A41E-159A6678BA9F}"_guid,
     "{311E6218-212E-440F-BDB9-A9A831A7907D}"_guid, 30013, ControlStatus},
    {u"CardShufflingOptions", "{CF8C0B0A-B303-485B-AD57-2A0980D92229}"_guid,
     "{CBF4F4C1-64B5-461D-8C49-B33744AA2D63}"_guid, "{42A5CEE0-1E5D-40A0-9FA3-F5AE6F5CF223}"_guid, 30012,
     ControlStatus},
    {u"PlusMinusButton", "{8F6F4F1B-0B4C-444C-8874-CACCA05C1F4C}"_guid, "{D78A4C10-24B7-409E-A794-C0106A81C460}"_guid,
     "{DC0711CE-5EA4-4367-890D-0D0793BC7C77}"_guid, 30011, ControlStatus},
    {u"LetterButton", "{AD616F9D-E26B-49EB-BAA3-6E9DA44CA2AE}"_guid, "{6E1FF050-3D42-4308-BAB4-12570DEFCCFE}"_guid,
     "{0AA4D1B2-DF9E-45B8-B4DD-D860DD1579E4}"_guid, 30010, ControlStatus},
    {u"SpreadSeatButtons", "{0D6F6639-E222-4256-AB9C-8A19D523FA2A}"_guid, "{0B263F46-E71A-4DCE-B17C-35AE1E9E0374}"_guid,
     "{1D4FC485-45C2-4C67-951C-F14EC9CB32F5}"_guid, 30009, ControlStatus},
    {u"paneledGOButton", "{85369472-5A75-4CE9-9FF0-4AD52F146874}"_guid, "{C54C7668-9536-4C99-BFB2-308C7F33A959}"_guid,
     "{4C82994C-BBDC-42EB-98ED-B0B884E425EF}"_guid, 30008, ControlStatus},
    {u"GOButton", "{83ACE87D-F3FF-404F-BFAD-3AB799DB1A9A}"_guid, "{81AD541D-6374-4DCC-8229-8FF7F82B5DB6}"_guid,
     "{F9527285-7018-4D12-B028-BA0C4281D990}"_guid, 30007, ControlStatus},
    {u"SitDownButton", "{BD5B17FB-41BA-496C-BE81-40BD3C10750F}"_guid, "{0B1C9DC2-05D2-4A8E-89A6-904B2BB4D1C8}"_guid,
     "{DDCF834C-4A58-4139-99D0-E92F88E85604}"_guid, 30006, ControlStatus},
    {u"SeatCheckBoxes", "{20988FD3-B31E-4866-B1F5-61623B8B081A}"_guid, "{3BC50BCA-FCA9-4770-9667-70F97DE1EC58}"_guid,
     "{C91A2B37-3C05-4E34-A8D7-0FE8C5C7426E}"_guid, 30005, ControlStatus},
    {u"ZilvoButtonGoodies", "{40609027-1B70-4F78-8216-BAE51719D00B}"_guid,
     "{F28C3CB0-B74C-4D71-8EA4-C33DD1BDC86F}"_guid, std::nullopt, std::nullopt, std::nullopt,
     typeflags::ApplicationObject | typeflags::CanCreate | typeflags::Predeclared},
    {u"paneledSeatBoxes", "{77DBBBE4-2CAD-4CD4-9CFE-1FB6D2088929}"_guid, "{3681E1C5-36D0-4E48-A71D-756BA9B2D69C}"_guid,
     "{3E62004B-57C6-4D5A-ABF1-CFAE3859F8F7}"_guid, 30004, ControlStatus},
    {u"SwitchCardsButton", "{08ACF70C-D543-4ABA-A894-DAF1DB234ADF}"_guid, "{A18D196B-3C4B-4424-86AF-0BE74A911BEA}"_guid,
     "{5A912F28-55F9-42B8-8AA4-423336FF1E34}"_guid, 30003, ControlStatus},
    {u"SpinCounter", "{EC922127-1A56-4446-A7ED-33FDBCD6AA15}"_guid, "{6CF11B89-B9FB-42A6-A370-4D98CAB77624}"_guid,
     "{465AA9DF-3E57-404C-B2C4-4E330BC044C4}"_guid, 30002, ControlStatus},
    {u"DeckButtons", "{49F5CF18-C7FD-407E-9374-3078A6FA29DC}"_guid, "{ED948F15-D845-49D5-8907-4701F4381D60}"_guid,
     "{8793920F-9840-4098-8502-022426699CF6}"_guid, 30001, ControlStatus},
    {u"verticalOK", "{607830C0-E548-41C2-9908-FE2A0C329D84}"_guid, "{D40DEDA7-A5B6-4168-BB27-1504F2740BF9}"_guid,
     "{6DDE63E5-29B3-4863-A915-B34CA3150027}"_guid, 30000, ControlStatus},
}};

} // namespace zilvo
