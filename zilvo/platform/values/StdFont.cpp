#include "zilvo/platform/values/StdFont.h"

#include <algorithm>

namespace zilvo::platform {

namespace {

constexpr std::array members = {
    property<&StdFont::get_Name, &StdFont::put_Name>(0, u"Name", u"newName"),
    property<&StdFont::get_Size, &StdFont::put_Size>(2, u"Size", u"newSize"),
    property<&StdFont::get_Bold, &StdFont::put_Bold>(3, u"Bold", u"newBold"),
    property<&StdFont::get_Italic, &StdFont::put_Italic>(4, u"Italic", u"newItalic"),
    property<&StdFont::get_Underline, &StdFont::put_Underline>(5, u"Underline", u"newUnderline"),
    property<&StdFont::get_Strikethrough, &StdFont::put_Strikethrough>(6, u"Strikethrough", u"newStrikethrough"),
    property<&StdFont::get_Weight, &StdFont::put_Weight>(7, u"Weight", u"newWeight"),
    property<&StdFont::get_Charset, &StdFont::put_Charset>(8, u"Charset", u"newCharset"),
};
static_assert(idsAndNamesAreUnique(members));

constexpr ClassDescription fontDescription{.name = u"StdFont", .members = members};

[[noreturn]] void refuse(const char* member, const Variant& value) {
    throw Failure(Status::InvalidPropertyValue, std::string("Font.") + member + " cannot be " + describe(value));
}

} // namespace

FontRef StdFont::make(const FontDesign& design) {
    return std::make_shared<StdFont>(design);
}

FontRef StdFont::copyOf(const FontRef& font) {
    if (!font) return nullptr;
    auto copy =
        make({font->name_.c_str(), font->size_, font->weight_, font->italic_, font->underline_, font->strikethrough_});
    copy->charset_ = font->charset_;
    return copy;
}

StdFont::StdFont(const FontDesign& design)
    : name_(design.Name),
      size_(design.Size),
      weight_(design.Weight),
      italic_(design.Italic),
      underline_(design.Underline),
      strikethrough_(design.Strikethrough) {}

template <class T>
inline void StdFont::change(T& member, const T& value) {
    if (member == value) return;
    member = value;
    const auto alive = weak_from_this().lock(); // whoever is told may let go of what has the font
    ++telling_;
    for (std::size_t i = 0; i < observers_.size(); ++i)
        if (observers_[i]) observers_[i]->FontChanged();
    if (--telling_ == 0) std::erase(observers_, nullptr);
}

void StdFont::put_Name(const String& newName) {
    if (newName.empty()) refuse("Name", newName);
    change(name_, newName);
}

void StdFont::put_Size(Single newSize) {
    if (!(newSize > 0 && newSize <= 2160)) refuse("Size", newSize);
    change(size_, newSize);
}

void StdFont::put_Weight(Integer newWeight) {
    if (newWeight < 1 || newWeight > 1000) refuse("Weight", newWeight);
    change(weight_, newWeight);
}

void StdFont::put_Bold(bool newBold) {
    if (newBold != get_Bold()) change(weight_, newBold ? Integer{700} : Integer{400});
}

void StdFont::put_Italic(bool newItalic) {
    change(italic_, newItalic);
}

void StdFont::put_Underline(bool newUnderline) {
    change(underline_, newUnderline);
}

void StdFont::put_Strikethrough(bool newStrikethrough) {
    change(strikethrough_, newStrikethrough);
}

void StdFont::put_Charset(Integer newCharset) {
    change(charset_, newCharset);
}

bool StdFont::sameMembers(const StdFont& other) const noexcept {
    return name_ == other.name_ && size_ == other.size_ && weight_ == other.weight_ && charset_ == other.charset_ &&
           italic_ == other.italic_ && underline_ == other.underline_ && strikethrough_ == other.strikethrough_;
}

const ClassDescription& StdFont::description() const noexcept {
    return fontDescription;
}

void StdFont::attach(FontObserver& observer) {
    observers_.push_back(&observer);
}

void StdFont::detach(FontObserver& observer) noexcept {
    const auto isIt = [&](const FontObserver* each) { return each == &observer; };
    if (telling_ == 0)
        std::erase_if(observers_, isIt);
    else
        std::replace_if(observers_.begin(), observers_.end(), isIt, nullptr);
}

} // namespace zilvo::platform
