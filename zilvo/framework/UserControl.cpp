#include "zilvo/framework/UserControl.h"

#include "zilvo/framework/Control.h"

#include <cmath>

namespace zilvo {

namespace {

constexpr std::array surfaceMembers = {
    property<&UserControl::get_BackColor, &UserControl::put_BackColor>(1, u"BackColor", u"newBackColor"),
    property<&UserControl::get_ForeColor, &UserControl::put_ForeColor>(2, u"ForeColor", u"newForeColor"),
    property<&UserControl::get_Width, &UserControl::put_Width>(3, u"Width", u"newWidth"),
    property<&UserControl::get_Height, &UserControl::put_Height>(4, u"Height", u"newHeight"),
    property<&UserControl::get_ScaleWidth>(5, u"ScaleWidth"),
    property<&UserControl::get_ScaleHeight>(6, u"ScaleHeight"),
};
static_assert(idsAndNamesAreUnique(surfaceMembers));

void checkLength(const char* what, Single twips) {
    if (!(twips >= 0) || !std::isfinite(twips))
        throw Failure(Status::InvalidPropertyValue,
                      std::string(what) + " of " + toUtf8(toString(twips)) + " twips is not possible");
}

} // namespace

/// Answers before a site is given and after the control was closed.
class UserControl::NullSite final : public ControlSite {
public:
    Ambient& ambient() override { return ambient_; }
    Extender& extender() override { return extender_; }
    void PropertyChanged(StringView /*name*/) override {}
    void SizeChanged(Single /*width*/, Single /*height*/) override {}
    void Beep() override {}

private:
    class NullExtender final : public Extender {};

    StandardAmbient ambient_;
    NullExtender extender_;
};

UserControl::UserControl(Control& owner, const Design& design) noexcept
    : owner_(owner),
      fontDesign_(design.Font),
      width_(design.Width),
      height_(design.Height),
      backColor_(design.BackColor),
      foreColor_(design.ForeColor),
      scaleMode_(design.ScaleMode),
      ownWidth_(design.OwnWidth) {}

UserControl::~UserControl() = default;

ControlSite& UserControl::site() {
    if (site_) return *site_;
    if (!nullSite_) nullSite_ = std::make_unique<NullSite>();
    return *nullSite_;
}

void UserControl::put_BackColor(Colour newBackColor) {
    if (backColor_ == newBackColor) return;
    const HeldSurface held(*this);
    backColor_ = newBackColor;
    viewChanged();
    tellEmbedded(u"BackColor");
}

void UserControl::put_ForeColor(Colour newForeColor) {
    if (foreColor_ == newForeColor) return;
    const HeldSurface held(*this);
    foreColor_ = newForeColor;
    viewChanged();
    tellEmbedded(u"ForeColor");
}

const FontRef& UserControl::get_Font() {
    if (!font_) font_ = StdFont::make(fontDesign_);
    return font_;
}

void UserControl::put_Width(Single newWidth) {
    setOwnSize(newWidth, height_);
}

void UserControl::put_Height(Single newHeight) {
    setOwnSize(width_, newHeight);
}

void UserControl::setOwnSize(Single width, Single height) {
    if (resizing_ && width == width_ && height == height_) return; // the handler comes to rest
    checkSize(width, height);
    const HeldSurface held(*this);
    take(width, height);
    resize();
}

void UserControl::setSize(Single width, Single height) {
    if (width != width_ || height != height_) take(width, height);
    resize();
}

void UserControl::checkSize(Single width, Single height) {
    checkLength("a width", width);
    checkLength("a height", height);
}

void UserControl::resize() {
    class Resizing {
    public:
        explicit Resizing(bool& resizing) noexcept : resizing_(resizing), before_(std::exchange(resizing, true)) {}
        Resizing(const Resizing&) = delete;
        Resizing& operator=(const Resizing&) = delete;
        ~Resizing() { resizing_ = before_; }

    private:
        bool& resizing_;
        bool before_;
    };
    const Resizing resizing(resizing_);
    owner_.Resize();
}

void UserControl::take(Single width, Single height) {
    width_ = width;
    height_ = height;
    viewChanged();
    if (site_) site_->SizeChanged(width, height);
}

Ambient& UserControl::get_Ambient() {
    return site().ambient();
}

Extender& UserControl::get_Extender() {
    return site().extender();
}

void UserControl::PopupMenu(Menu& root) {
    if (!site_ || !site_->ShowPopup(root, owner_.router_.pointer())) owner_.router_.showPopup(root);
    viewChanged();
}

void UserControl::PropertyChanged(StringView name) {
    if (site_) site_->PropertyChanged(name);
}

void UserControl::Beep() {
    if (site_) site_->Beep();
}

void UserControl::hold() noexcept {
    owner_.AddRef();
}

void UserControl::letGo() noexcept {
    owner_.Release();
}

bool UserControl::acceptsInput() const {
    if (!site_) return false;
    if (const Widget* widget = site_->embeddingWidget()) return widget->acceptsInput();
    const Extender& extender = site_->extender();
    return extender.get_Visible() && extender.get_Enabled();
}

bool UserControl::isEnabled() const {
    if (!site_) return true;
    const Widget* widget = site_->embeddingWidget();
    return site_->extender().get_Enabled() && (!widget || widget->surface().isEnabled());
}

bool UserControl::displaysDefault() const {
    return !site_ || site_->ambient().get_DisplayAsDefault();
}

void UserControl::viewChanged() noexcept {
    if (site_) site_->ViewChanged();
}

bool UserControl::leaveFocus(bool forward) {
    return site_ && site_->LeaveFocus(forward);
}

void UserControl::widgetChanged(const Widget& widget, Aspect aspect) noexcept {
    if (site_) site_->WidgetChanged(widget, aspect);
}

Widget* UserControl::embeddingWidget() const noexcept {
    return site_ ? site_->embeddingWidget() : nullptr;
}

void UserControl::surfaceMouseDown(Integer button, Integer shift, Point at) {
    const Single unit = twipsPerUnit(scaleMode_);
    owner_.MouseDown(button, shift, at.x / unit, at.y / unit);
}

bool UserControl::surfaceKeyPress(Integer& keyAscii) {
    return owner_.KeyPress(keyAscii);
}

void UserControl::tellEmbedded(StringView ambientName) {
    for (Widget& widget : *this)
        widget.ambientChanged(ambientName);
}

const ClassDescription& UserControl::description() const noexcept {
    static constexpr ClassDescription description{.name = u"UserControl", .members = surfaceMembers};
    return description;
}

} // namespace zilvo
