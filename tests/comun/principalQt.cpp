#include <QApplication>
#include <QSurfaceFormat>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    QSurfaceFormat formato;
    formato.setVersion(3, 3);
    formato.setProfile(QSurfaceFormat::CoreProfile);
    QSurfaceFormat::setDefaultFormat(formato);
    QApplication aplicacion(argc, argv);
    return RUN_ALL_TESTS();
}
