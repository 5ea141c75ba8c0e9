#include "shell/ventanas/frmsplash.h"

#include "shell/ventanas/presentacion.h"
#include "ui_frmsplash.h"

#include <QScreen>
#include <QTimer>

namespace tarvo {

FrmSplash::FrmSplash() : QWidget(nullptr, Qt::SplashScreen), Timer1(new QTimer(this)) {
    Ui::FrmSplash ui;
    ui.setupUi(this);
    ui.imgSplash->setPixmap(ImagenPresentacion(devicePixelRatioF()));
    Timer1->setObjectName(QStringLiteral("Timer1"));
    Timer1->setInterval(5000);
    Timer1->setTimerType(Qt::PreciseTimer); // the usual kind may be a quarter of a second off
    Timer1->setSingleShot(true);
    connect(Timer1, &QTimer::timeout, this, [this] {
        emit Terminado();
        close();
    });
}

void FrmSplash::showEvent(QShowEvent *evento) {
    QWidget::showEvent(evento);
    adjustSize();
    move(screen()->availableGeometry().center() - rect().center());
    Timer1->start();
}

} // namespace tarvo
