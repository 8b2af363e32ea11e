#pragma once

#include "zilvo/platform/values/Members.h"

#include <vector>

namespace zilvo::platform {

/// A font as it is designed: part of a control's table of children.
struct FontDesign {
    const char16_t* Name = u"MS Sans Serif";
    Single Size = 8.25F;  ///< points
    Integer Weight = 400; ///< 400 normal, 700 bold, 900 heavy
    bool Italic = false;
    bool Underline = false;
    bool Strikethrough = false;
};

/// What a painter needs to know of a font, for the length of one call.
struct FontLook {
    StringView name;
    Single size;
    Integer weight;
    bool italic;
    bool underline;
    bool strikethrough;
};

/// Is told when a font that it shows has changed.
class FontObserver {
public:
    virtual void FontChanged() noexcept = 0;

protected:
    ~FontObserver() = default;
};

/// The font object that widgets hand out and take: shared, so that a change of a member shows everywhere.
class StdFont final : public Described, public std::enable_shared_from_this<StdFont> {
public:
    /// Fonts outlive the component that asked for them, so they are made here and copy the design.
    static FontRef make(const FontDesign& design);
    /// Another object with the same members; nothing for nothing.
    static FontRef copyOf(const FontRef& font);

    explicit StdFont(const FontDesign& design);
    StdFont(const StdFont&) = delete;
    StdFont& operator=(const StdFont&) = delete;
    ~StdFont() = default;

    const String& get_Name() const noexcept { return name_; }
    /// Fails with InvalidPropertyValue when empty.
    void put_Name(const String& newName);
    /// Points.
    Single get_Size() const noexcept { return size_; }
    /// Fails with InvalidPropertyValue unless above 0 and at most 2160 points.
    void put_Size(Single newSize);
    Integer get_Weight() const noexcept { return weight_; }
    /// Fails with InvalidPropertyValue outside 1 to 1000.
    void put_Weight(Integer newWeight);
    /// Bold is a view of the weight: above 550. Setting it gives 700 or 400.
    bool get_Bold() const noexcept { return weight_ > 550; }
    void put_Bold(bool newBold);
    bool get_Italic() const noexcept { return italic_; }
    void put_Italic(bool newItalic);
    bool get_Underline() const noexcept { return underline_; }
    void put_Underline(bool newUnderline);
    bool get_Strikethrough() const noexcept { return strikethrough_; }
    void put_Strikethrough(bool newStrikethrough);
    Integer get_Charset() const noexcept { return charset_; }
    void put_Charset(Integer newCharset);

    FontLook look() const noexcept { return {name_, size_, weight_, italic_, underline_, strikethrough_}; }
    bool sameMembers(const StdFont& other) const noexcept;
    const ClassDescription& description() const noexcept override;

    /// The observer must detach before it dies; it may do so, and others with it, while it is told of a change.
    void attach(FontObserver& observer);
    void detach(FontObserver& observer) noexcept;

private:
    template <class T>
    void change(T& member, const T& value);

    String name_;
    Single size_;
    Integer weight_;
    Integer charset_ = 0;
    bool italic_;
    bool underline_;
    bool strikethrough_;
    std::vector<FontObserver*> observers_; ///< null where one has detached while they are told
    unsigned telling_ = 0;
};

} // namespace zilvo::platform
