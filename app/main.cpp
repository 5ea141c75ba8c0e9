#include "desktop/ventanas/preguntasqt.h"
#include "shell/ventanas/aplicacion.h"
#include "shell/ventanas/programa.h"

#include <QStandardPaths>

int main(int argc, char **argv) {
    tarvo::PreguntasQt preguntas;
    const tarvo::Aplicacion aplicacion(argc, argv, preguntas);
    return tarvo::Programa(preguntas, QCoreApplication::applicationDirPath(),
                           QStandardPaths::writableLocation(QStandardPaths::AppDataLocation))
        .Ejecutar(QCoreApplication::arguments().contains(QStringLiteral("--directo")));
}
