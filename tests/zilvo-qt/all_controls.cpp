// Shows every control of a component in one window, or those of the classes that are named.
//
//     all-controls COMPONENT [CLASS...]
//
// Says on standard output where each is, in pixels of the screen, that the window is ready, and what happens:
//
//     DeckButtons at 10 40 541 62
//     ready
//     DeckButtons.DeckCountWas 6
#include "zilvo-qt/Components.h"
#include "zilvo-qt/ControlWidget.h"

#include "zilvo/platform/component/ComponentFile.h"

#include <QApplication>
#include <QLabel>
#include <QTextStream>
#include <QTimer>
#include <QVBoxLayout>
#include <cstdio>

using namespace zilvo;
using qt::ControlWidget;

namespace {

constexpr int RowWidth = 1200; // pixels

void say(const QString& line) {
    QTextStream(stdout) << line << Qt::endl;
}

ControlWidget* show(const QString& name, QWidget& window) {
    auto* control = new ControlWidget(name, &window);
    control->setObjectName(name);
    control->setAccessibleName(name);
    QObject::connect(control, &ControlWidget::raised, [name](const QString& event, const QVariantList& arguments) {
        QString line = name + u'.' + event;
        for (const QVariant& argument : arguments)
            line += u' ' + argument.toString();
        say(line);
    });
    QObject::connect(control, &ControlWidget::failed, [name](int /*status*/, const QString& message) {
        say(QStringLiteral("%1 failed: %2").arg(name, message));
    });
    return control;
}

} // namespace

int main(int argumentCount, char** arguments) {
    QApplication application(argumentCount, arguments);
    QStringList names = QApplication::arguments().mid(1);
    if (names.isEmpty()) {
        std::fputs("all-controls COMPONENT [CLASS...]\n", stderr);
        return 2;
    }
    try {
        const QString file = names.takeFirst();
        qt::Components::ofApplication().add(file);
        const platform::ComponentFile component(file.toStdString());
        if (names.isEmpty())
            for (const auto& entry : component.description().classes)
                if (entry.identity.isControl()) names += qt::toQString(entry.description.name);

        QWidget window;
        window.setWindowTitle(QStringLiteral("All controls"));
        auto* rows = new QVBoxLayout(&window);
        QHBoxLayout* row = nullptr;
        QList<ControlWidget*> controls;
        int left = 0;
        for (const QString& name : names) {
            ControlWidget* control = show(name, window);
            controls += control;
            left -= control->sizeHint().width();
            if (!row || left < 0) {
                left = RowWidth - control->sizeHint().width();
                row = new QHBoxLayout;
                rows->addLayout(row);
            }
            auto* column = new QVBoxLayout;
            column->addWidget(new QLabel(name));
            column->addWidget(control, 1, Qt::AlignLeft | Qt::AlignTop);
            row->addLayout(column);
        }
        window.show();
        window.activateWindow(); // also where no window manager does
        QTimer::singleShot(0, &window, [&] {
            for (const ControlWidget* control : controls) {
                const QPoint corner = control->mapToGlobal(QPoint());
                say(QStringLiteral("%1 at %2 %3 %4 %5")
                        .arg(control->objectName())
                        .arg(corner.x())
                        .arg(corner.y())
                        .arg(control->width())
                        .arg(control->height()));
            }
            say(QStringLiteral("ready"));
        });
        return QApplication::exec();
    } catch (const platform::Failure& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
}
