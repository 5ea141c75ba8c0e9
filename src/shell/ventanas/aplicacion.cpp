#include "shell/ventanas/aplicacion.h"

#include "desktop/ventanas/estilo.h"
#include "desktop/ventanas/teclasostenida.h"
#include "shell/ventanas/traduccionteclas.h"

#include <QLibraryInfo>
#include <QTranslator>

namespace tarvo {

Aplicacion::Aplicacion(int &argc, char **argv, Preguntas &preguntas)
    : QApplication(argc, argv), aviso_(preguntas) {
    setOrganizationName(QStringLiteral("Velbrina Software"));
    setApplicationName(QStringLiteral("Tarvo"));
    setDesktopFileName(QStringLiteral("tarvo")); // the desktop finds the icon of the windows by it
    // The ready-made dialogs of the toolkit speak Spanish too, where its translation is installed.
    auto *traduccion = new QTranslator(this);
    if (traduccion->load(QStringLiteral("qtbase_es"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        installTranslator(traduccion);
    installTranslator(new TraduccionTeclas(this));
    installEventFilter(new TeclaSostenida(this));
    AplicarEstilo(*this);
}

bool Aplicacion::notify(QObject *receptor, QEvent *evento) {
    return aviso_.Proteger([this, receptor, evento] { return QApplication::notify(receptor, evento); });
}

} // namespace tarvo
