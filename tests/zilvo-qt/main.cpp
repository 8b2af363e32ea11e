#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (!qEnvironmentVariableIsSet("ZILVO_TEST_SCREEN")) qputenv("QT_QPA_PLATFORM", "offscreen"); // nobody's is needed
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
