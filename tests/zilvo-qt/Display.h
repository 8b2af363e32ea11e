#pragma once

#include <QProcess>
#include <QWidget>
#include <QtTest/QtTest>
#include <gtest/gtest.h>

/// A display with a window manager and a pointer and keyboard that are no test's own: xdotool moves them.
namespace zilvo::qt {

inline QByteArray run(const QString& program, const QStringList& arguments, const QByteArray& in = {}) {
    QProcess process;
    process.start(program, arguments);
    process.write(in);
    process.closeWriteChannel();
    EXPECT_TRUE(QTest::qWaitFor([&] { return process.state() == QProcess::NotRunning; }, 30000)) << qPrintable(program);
    EXPECT_EQ(process.exitCode(), 0) << qPrintable(program + " " + arguments.join(" ")) << ": "
                                     << process.readAllStandardError().toStdString();
    return process.readAllStandardOutput();
}

inline void xdotool(const QStringList& arguments) {
    run("xdotool", arguments);
}

/// Of the display, where a widget's point is.
inline QStringList moveTo(const QWidget& widget, QPoint point) {
    const QPoint at = widget.mapToGlobal(point) * widget.devicePixelRatioF();
    return {"mousemove", "--sync", QString::number(at.x()), QString::number(at.y())};
}

template <class Condition>
void await(const char* what, const Condition& condition) {
    EXPECT_TRUE(QTest::qWaitFor(condition, 20000)) << "waited in vain: " << what;
}

} // namespace zilvo::qt
