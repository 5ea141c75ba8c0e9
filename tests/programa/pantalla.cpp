#include "programa/pantalla.h"

#include <QFile>
#include <QtCore/qtestsupport_core.h>

#include <stdexcept>

namespace tarvo {

QByteArray Ejecutar(const QString &orden, const QStringList &argumentos, bool puedeFallar) {
    QProcess proceso;
    proceso.start(orden, argumentos);
    const bool bien = proceso.waitForFinished(kEspera) && proceso.exitCode() == 0;
    if (!bien && !puedeFallar)
        throw std::runtime_error(
            (orden + QLatin1Char(' ') + argumentos.join(QLatin1Char(' '))).toStdString() + ": " +
            proceso.readAllStandardError().toStdString());
    return proceso.readAllStandardOutput();
}

void Esperar(const char *que, const std::function<bool()> &cumple) {
    if (!QTest::qWaitFor(cumple, kEspera))
        throw std::runtime_error(std::string("did not come: ") + que);
}

Pantalla::Pantalla() {
    const QString numero = registros_.filePath(QStringLiteral("numero"));
    servidor_.setStandardOutputFile(numero);
    servidor_.setStandardErrorFile(QProcess::nullDevice());
    // A server that resets itself when its first client leaves would take the window manager along.
    servidor_.start(QStringLiteral("Xvfb"),
                    {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                     QStringLiteral("0"), QStringLiteral("1280x900x24"), QStringLiteral("-noreset"),
                     QStringLiteral("-nolisten"), QStringLiteral("tcp")});
    QByteArray leido;
    Esperar("display number of the X server", [&] {
        QFile archivo(numero);
        if (archivo.open(QIODevice::ReadOnly))
            leido = archivo.readAll();
        return leido.endsWith('\n');
    });
    qputenv("DISPLAY", ":" + leido.trimmed());
    gestor_.setStandardErrorFile(QProcess::nullDevice());
    gestor_.start(QStringLiteral("openbox"), {QStringLiteral("--sm-disable")});
    Esperar("window manager", [] {
        return Ejecutar(QStringLiteral("xprop"),
                        {QStringLiteral("-root"), QStringLiteral("_NET_SUPPORTING_WM_CHECK")}, true)
            .contains("window id");
    });
}

Pantalla::~Pantalla() {
    for (QProcess *proceso : {&gestor_, &servidor_}) {
        proceso->terminate();
        if (!proceso->waitForFinished(3000)) {
            proceso->kill();
            proceso->waitForFinished(3000);
        }
    }
}

} // namespace tarvo
