#include "shell/ventanas/etiquetaenlace.h"
#include "shell/ventanas/frmabout.h"
#include "shell/ventanas/frmsplash.h"
#include "testkit/mundoprueba.h"

#include <QEnterEvent>

namespace tarvo {
namespace {

TEST(FrmAbout, LinksTurnRedUnderTheMouseAndOpenMailAndSite) {
    MundoPrueba mundo;
    FrmAbout about(mundo.servicios(), nullptr);
    MostrarVentana(about);
    const std::pair<const char *, const char *> enlaces[] = {{"lblMail", "mailto:contacto@velbrina.example"},
                                                             {"lblWeb", "https://www.velbrina.example/"}};
    for (const auto &[nombre, direccion] : enlaces) {
        SCOPED_TRACE(nombre);
        auto *enlace = Control<EtiquetaEnlace>(about, nombre);
        const auto color = [enlace] { return enlace->palette().color(QPalette::WindowText); };
        EXPECT_EQ(color(), QColor(Qt::blue));
        QEnterEvent entra({1, 1}, {1, 1}, {1, 1});
        QApplication::sendEvent(enlace, &entra);
        EXPECT_EQ(color(), QColor(Qt::red));
        QEvent sale(QEvent::Leave);
        QApplication::sendEvent(enlace, &sale);
        EXPECT_EQ(color(), QColor(Qt::blue));
        mundo.escritorio.direcciones.clear();
        QTest::mouseClick(enlace, Qt::RightButton);
        QTest::mousePress(enlace, Qt::LeftButton);
        QTest::mouseRelease(enlace, Qt::LeftButton, {}, {-5, -5});
        EXPECT_TRUE(mundo.escritorio.direcciones.isEmpty());
        Pulsar(enlace);
        EXPECT_EQ(mundo.escritorio.direcciones, QList{QUrl(QLatin1String(direccion))});
    }
    Tecla(&about, Qt::Key_Escape);
    EXPECT_FALSE(about.isVisible());
}

TEST(FrmSplash, ClosesOnTheOneTickOfItsTimer) {
    FrmSplash splash;
    QSignalSpy terminado(&splash, &FrmSplash::Terminado);
    splash.show();
    EXPECT_EQ(splash.size(), QSize(360, 264));
    auto *timer = splash.findChild<QTimer *>();
    ASSERT_NE(timer, nullptr);
    EXPECT_EQ(timer->interval(), 5000);
    EXPECT_TRUE(timer->isActive());
    EXPECT_TRUE(terminado.isEmpty());
    timer->start(0);
    QTRY_COMPARE(terminado.size(), 1);
    EXPECT_FALSE(splash.isVisible() || timer->isActive());
}

} // namespace
} // namespace tarvo
