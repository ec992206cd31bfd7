#include <QApplication>
#include <clocale>
#include <gmock/gmock.h>

int main(int argc, char **argv)
{
    QApplication aplicacion(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
