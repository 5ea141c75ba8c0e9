#include "shell/ventanas/aplicacion.h"

#include "desktop/ventanas/estilo.h"

#include <QLibraryInfo>
#include <QTranslator>

namespace tarvo {

Aplicacion::Aplicacion(int &argc, char **argv, Preguntas &preguntas)
    : QApplication(argc, argv), preguntas_(preguntas) {
    setOrganizationName(QStringLiteral("Velbrina Software"));
    setApplicationName(QStringLiteral("Tarvo"));
    // The ready-made dialogs of the toolkit speak Spanish too, where its translation is installed.
    auto *traduccion = new QTranslator(this);
    if (traduccion->load(QStringLiteral("qtbase_es"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        installTranslator(traduccion);
    AplicarEstilo(*this);
}

bool Aplicacion::notify(QObject *receptor, QEvent *evento) {
    try {
        return QApplication::notify(receptor, evento);
    } catch (const std::exception &error) {
        Avisar(QString::fromUtf8(error.what()));
    } catch (...) {
        Avisar(QStringLiteral("causa desconocida"));
    }
    return true;
}

// One box at a time: what fails again while it is shown, as painting may, adds none.
void Aplicacion::Avisar(const QString &motivo) {
    if (avisando_)
        return;
    avisando_ = true;
    preguntas_.Mostrar(QStringLiteral("No se pudo completar la operación: %1").arg(motivo), Icono::Critico);
    avisando_ = false;
}

} // namespace tarvo
