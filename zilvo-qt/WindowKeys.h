#pragma once

#include "zilvo/platform/hosting/Input.h"

#include <QObject>
#include <map>

class QShortcut;
class QWidget;

namespace zilvo::qt {

class ControlWidget;

/// The keys that are a window's affair, for all controls on it: Enter and Escape that nobody else has a use for press
/// their default and cancel buttons, and letters with Alt go to whatever answers to them now, in turn where several
/// do. A dialog's own default button comes before the controls'; a button that has the keyboard before all. One per
/// window, which owns it.
class Q_DECL_HIDDEN WindowKeys final : public QObject {
    Q_OBJECT

public:
    static WindowKeys& of(QWidget& window);
    /// Null while no control was shown on the window.
    static WindowKeys* find(const QWidget& window);

    /// Something that Enter depends on has changed: soon the control whose default button is the window's now, and no
    /// other, draws the heavy frame.
    void updateDefault();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit WindowKeys(QWidget& window);

    ControlWidget* defaultControl() const;
    ControlWidget* cancelControl() const;
    /// The one whose turn it is among those that answer to the letter now; null for none.
    ControlWidget* answering(char16_t letter) const;
    /// Has the letter taken as a shortcut, before an editor types it, as long as a control answers to it.
    void takeLetter(const platform::input::KeyDown& key);
    void markDefault();

    QWidget& window_;
    std::map<char16_t, QShortcut*> letters_; ///< taken with Alt so far; children of the window
    bool marksSoon_ = false;
};

} // namespace zilvo::qt
