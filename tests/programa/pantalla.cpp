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
        throw std::runtime_error((orden + u' ' + argumentos.join(u' ')).toStdString() + ": " +
                                 proceso.readAllStandardError().toStdString());
    return proceso.readAllStandardOutput();
}

void Esperar(const char *que, const std::function<bool()> &cumple) {
    if (!QTest::qWaitFor(cumple, kEspera))
        throw std::runtime_error(std::string("did not come: ") + que);
}

Pantalla::Pantalla() {
    const QString numero = registros_.filePath(u"numero"_qs);
    servidor_.setStandardOutputFile(numero);
    servidor_.setStandardErrorFile(QProcess::nullDevice());
    // A server that resets itself when its first client leaves would take the window manager along.
    servidor_.start(u"Xvfb"_qs, {u"-displayfd"_qs, u"1"_qs, u"-screen"_qs, u"0"_qs, u"1280x900x24"_qs,
                                 u"-noreset"_qs, u"-nolisten"_qs, u"tcp"_qs});
    QByteArray leido;
    Esperar("display number of the X server", [&] {
        QFile archivo(numero);
        if (archivo.open(QIODevice::ReadOnly))
            leido = archivo.readAll();
        return leido.endsWith('\n');
    });
    qputenv("DISPLAY", ":" + leido.trimmed());
    gestor_.setStandardErrorFile(QProcess::nullDevice());
    gestor_.start(u"openbox"_qs, {u"--sm-disable"_qs});
    Esperar("window manager", [] {
        return Ejecutar(u"xprop"_qs, {u"-root"_qs, u"_NET_SUPPORTING_WM_CHECK"_qs}, true)
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
