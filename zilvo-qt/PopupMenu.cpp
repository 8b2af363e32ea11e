#include "zilvo-qt/PopupMenu.h"

#include "zilvo-qt/ControlWidget.h"

#include <QMenu>

namespace zilvo::qt {

using namespace platform;

namespace {

void fill(ControlWidget& widget, QMenu& menu, const Menu& parent) {
    for (Menu* item : parent.items()) {
        const QString caption = toQString(item->get_Caption());
        QAction* action = item->isSeparator()    ? menu.addSeparator()
                          : item->opensSubmenu() ? menu.addMenu(caption)->menuAction()
                                                 : menu.addAction(caption);
        action->setEnabled(item->get_Enabled());
        if (item->opensSubmenu()) {
            fill(widget, *action->menu(), *item);
            continue;
        }
        action->setCheckable(item->get_Checked());
        action->setChecked(item->get_Checked());
        // Widget and control outlive the menu, and with it its items.
        QObject::connect(action, &QAction::triggered, &widget, [&widget, item] { widget.input(input::Invoke{*item}); });
    }
}

} // namespace

void popUp(ControlWidget& widget, Menu& root, QPoint at) {
    auto* menu = new QMenu(&widget);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    fill(widget, *menu, root);
    menu->popup(at);
}

} // namespace zilvo::qt
