#include <QApplication>

#include <gtest/gtest.h>

// Widget tests need one QApplication for the whole run. They run offscreen unless told
// otherwise, so that listing them needs no display either.
int main(int argc, char* argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
