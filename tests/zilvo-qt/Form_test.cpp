#include <QCoreApplication>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace zilvo::qt {
namespace {

/// The form that host authors copy from, run where there is no display.
struct Form : testing::Test {
    QTemporaryDir folder;
    QProcess program;

    void run(const QStringList& arguments) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char* display : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            environment.remove(display);
        environment.insert("XDG_CONFIG_HOME", folder.path());
        environment.insert("XDG_RUNTIME_DIR", folder.path());
        program.setProcessEnvironment(environment);
        program.start(QCoreApplication::applicationDirPath() + "/qt-form", arguments);
        ASSERT_TRUE(program.waitForFinished(-1));
        ASSERT_EQ(program.exitStatus(), QProcess::NormalExit);
    }
    std::string told() { return program.readAllStandardError().toStdString(); }
};

TEST_F(Form, PaintsItselfIntoAFile) {
    const QString file = folder.filePath("form.png");
    run({"--screenshot", file});
    EXPECT_EQ(program.exitCode(), 0) << told();
    const QImage picture(file);
    int face = 0;
    int ink = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) {
            const QColor pixel = picture.pixelColor(x, y);
            face += pixel == QColor(0xC0, 0xC0, 0xC0);
            ink += pixel.lightness() < 64;
        }
    // The panel of the deck buttons alone is 541 by 62 pixels, with ten captions on it.
    EXPECT_GT(face, 541 * 62 / 2);
    EXPECT_GT(ink, 500);
}

TEST_F(Form, SaysWhatItCannotDo) {
    run({});
    EXPECT_EQ(program.exitCode(), 1);
    EXPECT_EQ(told(), "qt-form: there is no display; --screenshot FILE needs none\n");
    run({"--screenshot", folder.filePath("missing/form.png")});
    EXPECT_EQ(program.exitCode(), 1);
    EXPECT_NE(told().find("cannot be written\n"), std::string::npos);
}

} // namespace
} // namespace zilvo::qt
