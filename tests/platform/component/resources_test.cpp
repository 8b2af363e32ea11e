#include "zilvo/library/ZilvoButtons.h"
#include "zilvo/platform/component/Resources.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace zilvo {

namespace {

Bytes resource(StringView name, StringView type = u"RCDATA") {
    for (const Resource& each : resourcesOf(libraryModule().description()))
        if (each.name == name && each.type == type) return each.bytes;
    return {};
}

/// Reads the version record node by node, as a host does.
class VersionReader {
public:
    explicit VersionReader(const Bytes& bytes) : bytes_(bytes) {}

    std::string text;

    /// Writes the nodes from `at` to `end` as "key=value " and "key{...} ".
    void read(std::size_t at, std::size_t end) {
        while (at < end) {
            const std::size_t length = number(at, 2);
            const std::size_t valueLength = number(at + 2, 2);
            const bool isText = number(at + 4, 2) != 0;
            const std::string key = string(at + 6);
            const std::size_t value = aligned(at + 6 + 2 * (key.size() + 1));
            ASSERT_GE(length, value - at);
            ASSERT_LE(at + length, end);
            text += key;
            if (isText && valueLength > 0) {
                text += "=" + string(value);
                EXPECT_EQ(string(value).size() + 1, valueLength) << key;
            } else {
                text += "{";
                for (std::size_t i = 0; i < valueLength; i += 4)
                    text += std::to_string(number(value + i, 4)) + " ";
                read(aligned(value + valueLength), at + length);
                text += "}";
            }
            text += "\n";
            at = aligned(at + length);
        }
    }

private:
    static std::size_t aligned(std::size_t offset) { return (offset + 3) / 4 * 4; }
    std::uint32_t number(std::size_t at, std::size_t size) const {
        std::uint32_t value = 0;
        for (std::size_t i = size; i-- > 0;)
            value = value << 8U | bytes_.at(at + i);
        return value;
    }
    std::string string(std::size_t at) const {
        std::string letters;
        for (; number(at, 2) != 0; at += 2)
            letters += static_cast<char>(number(at, 2));
        return letters;
    }

    const Bytes& bytes_;
};

} // namespace

TEST(Resources, ToolboxPicturesAreBottomUpInBlueGreenRed) {
    ToolboxPicture picture{u"Any", {}};
    picture.rows.fill("................");
    picture.rows.front() = "R...............";
    picture.rows.back() = "...............b";
    const Bytes bytes = bitmapOf(picture).deviceIndependent();
    ASSERT_EQ(bytes.size(), 760U);
    EXPECT_EQ(Bytes(bytes.begin(), bytes.begin() + 16), (Bytes{40, 0, 0, 0, 16, 0, 0, 0, 15, 0, 0, 0, 1, 0, 24, 0}));
    const auto pixel = [&](std::size_t row, std::size_t column) {
        const auto at = bytes.begin() + static_cast<std::ptrdiff_t>(40 + row * 48 + column * 3);
        return Bytes(at, at + 3);
    };
    EXPECT_EQ(pixel(14, 0), (Bytes{0, 0, 255}));
    EXPECT_EQ(pixel(0, 15), (Bytes{128, 0, 0}));
    EXPECT_EQ(pixel(7, 7), (Bytes{192, 192, 192}));

    picture.rows[3] = "...............?";
    EXPECT_FALSE(picture.isWhole());
    picture.rows[3] = "...............";
    EXPECT_FALSE(picture.isWhole());
}

TEST(Resources, EveryControlHasItsOwnPictureAndInterfaceIds) {
    std::vector<Bytes> pictures;
    for (const ClassIdentity& identity : classIdentities) {
        std::string capitals = toUtf8(identity.name);
        std::ranges::transform(capitals, capitals.begin(), [](char letter) { return std::toupper(letter); });
        EXPECT_EQ(resource(toUtf16("_IID_" + capitals)).size(), 20U) << capitals;
        EXPECT_EQ(resource(toUtf16("_SRCIID_" + capitals)).size(), identity.isControl() ? 20U : 0U) << capitals;
        if (!identity.isControl()) continue;
        pictures.push_back(resource(toUtf16(std::to_string(*identity.toolboxBitmap)), u"BITMAP"));
        EXPECT_EQ(pictures.back().size(), 760U) << capitals;
    }
    std::ranges::sort(pictures);
    EXPECT_EQ(std::ranges::adjacent_find(pictures), pictures.end()) << "two controls look the same";
    String names;
    for (const Resource& each : resourcesOf(libraryModule().description()))
        if (each.name.find(u"OK") != String::npos || each.name.size() < 6) names += each.type + u" " + each.name + u" ";
    EXPECT_TRUE(names.starts_with(u"TYPELIB 1 BITMAP 30000 BITMAP 30001 BITMAP 30002 ") &&
                names.ends_with(u"BITMAP 30016 RCDATA _IID_SSOKCANCEL RCDATA _SRCIID_SSOKCANCEL RCDATA _IID_VERTICALOK "
                                u"RCDATA _SRCIID_VERTICALOK VERSION 1 "))
        << toUtf8(names);
    EXPECT_EQ(resource(u"_IID_ZILVOBUTTONGOODIES"),
              (Bytes{16,   0,    0,    0,    0xB0, 0x3C, 0x8C, 0xF2, 0x4C, 0xB7,
                     0x71, 0x4D, 0x8E, 0xA4, 0xC3, 0x3D, 0xD1, 0xBD, 0xC8, 0x6F}));
    EXPECT_EQ(resource(u"_SRCIID_VERTICALOK"), (Bytes{16,   0,    0,    0,    0xE5, 0x63, 0xDE, 0x6D, 0xB3, 0x29,
                                                      0x63, 0x48, 0xA9, 0x15, 0xB3, 0x4C, 0xA3, 0x15, 0x00, 0x27}));
}

TEST(Resources, TheVersionRecordReadsAsATree) {
    const Bytes bytes = resource(u"1", u"VERSION");
    VersionReader reader(bytes);
    ASSERT_NO_FATAL_FAILURE(reader.read(0, bytes.size()));
    EXPECT_EQ(reader.text, "VS_VERSION_INFO{4277077181 65536 196608 4 196608 4 0 0 4 2 0 0 0 "
                           "StringFileInfo{040904B0{"
                           "Comments=Zilvo for Blackjack - Button Controls\n"
                           "ProductName=ZILVO_ZilvoButtons\n"
                           "FileVersion=3.00.0004\n"
                           "ProductVersion=3.00.0004\n"
                           "InternalName=ZilvoButtons-445\n"
                           "OriginalFilename=ZilvoButtons-445.Ocx\n"
                           "OLESelfRegister=\n"
                           "}\n}\n"
                           "VarFileInfo{Translation{78644233 }\n}\n"
                           "}\n");
}

} // namespace zilvo
