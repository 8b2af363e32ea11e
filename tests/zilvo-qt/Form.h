#pragma once

#include "zilvo-qt/ControlWidget.h"

#include "zilvo/platform/values/Text.h"
#include "zilvo/platform/widgets/Surface.h"

#include <QVBoxLayout>
#include <QtTest/QtTest>
#include <gtest/gtest.h>

namespace zilvo::qt {

/// A control on a form, with a log of its events, "CommandClicked(0)", and of what failed.
class Hosted final : public ControlWidget {
public:
    explicit Hosted(const QString& controlClass, QWidget* parent = nullptr) : ControlWidget(controlClass, parent) {
        connect(this, &ControlWidget::raised, this, [this](const QString& event, const QVariantList& arguments) {
            QStringList shown;
            for (const QVariant& argument : arguments)
                shown.append(argument.toString());
            heard_.append(event + "(" + shown.join(", ") + ")");
        });
        connect(this, &ControlWidget::failed, this,
                [this](int /*status*/, const QString& message) { heard_.append("failed: " + message); });
    }

    /// Since the last call, in one line.
    std::string heard() { return std::exchange(heard_, {}).join(" ").toStdString(); }

    platform::Widget& widget(platform::StringView name, platform::Integer index = platform::NoIndex) const {
        platform::Widget* found = control().surface().find(name, index);
        if (!found) throw platform::Failure(platform::Status::MissingElement, platform::toUtf8(name));
        return *found;
    }
    /// On this widget, for what lies on the control's surface or in its panels and frames.
    QPoint at(const platform::Widget& widget, double across = 0.5, double down = 0.5) const {
        const platform::Rectangle& bounds = widget.bounds();
        QPointF point = toPixels({0, 0, bounds.width, bounds.height}).bottomRight();
        point = {point.x() * across, point.y() * down};
        for (const platform::Widget* outer = &widget; outer; outer = outer->parent())
            point += toPixels(outer->bounds()).topLeft();
        return point.toPoint();
    }
    std::string focused() const {
        const platform::Widget* focused = control().focus();
        return focused ? platform::shownName(*focused) : "none";
    }

private:
    QStringList heard_;
};

/// A window that is shown and active.
template <class Window = QWidget>
class Shown : public Window {
public:
    Shown() { this->setLayout(new QVBoxLayout); }

    template <class Widget, class... Arguments>
    Widget& add(const Arguments&... arguments) {
        auto* widget = new Widget(arguments...);
        this->layout()->addWidget(widget);
        return *widget;
    }
    void open() {
        this->show();
        this->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(this));
    }
};

} // namespace zilvo::qt
