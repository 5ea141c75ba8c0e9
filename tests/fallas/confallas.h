// Tests that run a program of this folder on a disk that fails.
#pragma once

#include <QProcess>

#include <gtest/gtest.h>

namespace tarvo {

// What one run said.
struct Corrida {
    QStringList lineas;
    bool fallo = false; // a fault was made
    bool matado = false;

    bool Hecho() const { return lineas.contains(u"OK"_qs); }
    std::string Texto(int desde = 0) const { return lineas.mid(desde).join(u';').toStdString(); }
};

class ConFallas : public testing::Test {
  protected:
    void SetUp() override {
#ifdef TARVO_SANITIZADO
        GTEST_SKIP() << "the sanitizer doesn't go with a preloaded library";
#endif
    }
    // `programa orden carpeta`, with a fault of this kind at that call; `extra` is one more variable.
    static Corrida Correr(const QString &programa, const char *orden, const QString &carpeta,
                          const char *modo, int llamada, const std::string &extra = "") {
        QProcess proceso;
        proceso.setEnvironment(QProcess::systemEnvironment()
                               << QStringLiteral("LD_PRELOAD=" TARVO_FALLAS)
                               << u"FALLAS_CARPETA="_qs + carpeta
                               << u"FALLAS_MODO="_qs + QString::fromUtf8(modo)
                               << u"FALLAS_LLAMADA=%1"_qs.arg(llamada) << QString::fromStdString(extra));
        proceso.start(programa, {QString::fromUtf8(orden), carpeta});
        EXPECT_TRUE(proceso.waitForFinished(60'000));
        Corrida corrida;
        corrida.lineas = QString::fromUtf8(proceso.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
        corrida.fallo = proceso.readAllStandardError().contains("FALLA");
        corrida.matado = proceso.exitStatus() == QProcess::CrashExit;
        return corrida;
    }
};

} // namespace tarvo
