// Entry of all test programs: windows are real ones, in the program's own style, on a screen that nobody
// sees.
#include "desktop/ventanas/estilo.h"

#include <QApplication>

#include <gmock/gmock.h>

int main(int argc, char **argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleMock(&argc, argv);
    QApplication aplicacion(argc, argv);
    tarvo::AplicarEstilo(aplicacion);
    return RUN_ALL_TESTS();
}
