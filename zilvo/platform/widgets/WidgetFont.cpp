#include "zilvo/platform/widgets/WidgetFont.h"

#include "zilvo/platform/widgets/Surface.h"

namespace zilvo::platform {

WidgetFont::~WidgetFont() {
    if (font_) font_->detach(*this);
}

const FontRef& WidgetFont::object() {
    if (!font_) {
        FontRef made = StdFont::make(design_); // looks as before: nothing to be painted again
        made->attach(*this);
        font_ = std::move(made);
    }
    return font_;
}

void WidgetFont::share(FontRef font) {
    if (!font) throw Failure(Status::InvalidPropertyValue, "a font cannot be nothing");
    if (font == font_) return;
    font->attach(*this);
    if (font_) font_->detach(*this);
    font_ = std::move(font);
    FontChanged();
}

FontLook WidgetFont::look() const noexcept {
    if (font_) return font_->look();
    return {design_.Name, design_.Size, design_.Weight, design_.Italic, design_.Underline, design_.Strikethrough};
}

void WidgetFont::FontChanged() noexcept {
    surface_.viewChanged();
}

} // namespace zilvo::platform
