#include "zilvo/setup/CardShufflingOptions.h"

namespace zilvo {

namespace {

constexpr std::array members = {
    property<&CardShufflingOptions::get_CardShuffleMethod, &CardShufflingOptions::put_CardShuffleMethod>(
        0x68030000, u"CardShuffleMethod", u"CardShuffleMethodNewValue"),
};
static_assert(idsAndNamesAreUnique(members));

constexpr std::array events = {
    event<1, &CardShufflingOptions::CardShuffleMethodChanged>(u"CardShuffleMethodChanged", u"ShuffleMethodSelected"),
};

} // namespace

constinit const ObjectDescription CardShufflingOptions::Description{u"CardShufflingOptions", members, events};

CardShufflingOptions::CardShufflingOptions(ComponentModule& module)
    : Control(module, {.Width = 8565, .Height = 1245, .ScaleMode = ScaleMode::Pixels}) {}

void CardShufflingOptions::Initialize() {
    put_CardShuffleMethod(GenericCardShufflePossibilities::noGenericCardShuffle);
}

void CardShufflingOptions::ReadProperties(const PropertyBag& PropBag) {
    put_CardShuffleMethod(PropBag.ReadProperty<GenericCardShufflePossibilities>(u"CardShuffleMethod", Integer{0}));
}

void CardShufflingOptions::WriteProperties(PropertyBag& PropBag) {
    PropBag.WriteProperty(u"CardShuffleMethod", storedCardShuffleMethod, Integer{0});
}

GenericCardShufflePossibilities CardShufflingOptions::get_CardShuffleMethod() {
    return static_cast<GenericCardShufflePossibilities>(storedCardShuffleMethod);
}

void CardShufflingOptions::put_CardShuffleMethod(GenericCardShufflePossibilities CardShuffleMethodNewValue) {
    const auto method = static_cast<Long>(CardShuffleMethodNewValue);
    OptionButton& option = optCardShuffleMethod.Item(narrow(method)); // what has none is not stored
    storedCardShuffleMethod = method;
    option.put_Value(true);
}

void CardShufflingOptions::optCardShuffleMethod_Click(Integer& Index) {
    CardShuffleMethodChanged.raise(Index);
}

} // namespace zilvo
