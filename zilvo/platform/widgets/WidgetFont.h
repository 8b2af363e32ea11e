#pragma once

#include "zilvo/platform/widgets/Widget.h"

namespace zilvo::platform {

/// A widget's font: as it is designed until somebody asks for the object, then that object, shared with whoever
/// has it. A change of the object shows on the widget.
class WidgetFont final : private FontObserver {
public:
    WidgetFont(Surface& surface, const FontDesign& design) noexcept : surface_(surface), design_(design) {}
    WidgetFont(const WidgetFont&) = delete;
    WidgetFont& operator=(const WidgetFont&) = delete;
    ~WidgetFont();

    /// The object itself, made on first use.
    const FontRef& object();
    /// Takes that object over. Fails with InvalidPropertyValue when it is nothing.
    void share(FontRef font);
    FontLook look() const noexcept;

private:
    void FontChanged() noexcept override;

    Surface& surface_;
    FontDesign design_;
    FontRef font_;
};

} // namespace zilvo::platform
