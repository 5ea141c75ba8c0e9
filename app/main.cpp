#include "desktop/ventanas/preguntasqt.h"
#include "shell/ventanas/aplicacion.h"
#include "shell/ventanas/programa.h"

#include <QStandardPaths>

int main(int argc, char **argv) {
    tarvo::PreguntasQt preguntas;
    const tarvo::Aplicacion aplicacion(argc, argv, preguntas);
    const QStringList argumentos = QCoreApplication::arguments();
    return tarvo::Programa(preguntas, QCoreApplication::applicationDirPath(),
                           QStandardPaths::writableLocation(QStandardPaths::AppDataLocation))
        .Ejecutar({argumentos.contains(QStringLiteral("--directo")),
                   argumentos.contains(QStringLiteral("--usuarios"))});
}
