#include <QApplication>

#include <gtest/gtest.h>

// Widget tests need one QApplication for the whole run; the platform is chosen by
// QT_QPA_PLATFORM (offscreen under CTest).
int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
