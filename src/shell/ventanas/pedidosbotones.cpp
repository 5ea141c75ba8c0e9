#include "shell/ventanas/pedidosbotones.h"

#include "desktop/escritorio.h"
#include "desktop/ventanas/botonzel.h"

#include <QAudioDevice>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QMediaDevices>
#include <QUrl>

namespace tarvo {

PedidosBotones::PedidosBotones(Escritorio &escritorio, QString carpetaPrograma)
    : escritorio_(escritorio), carpeta_(std::move(carpetaPrograma)) {
    qApp->installEventFilter(this);
}

PedidosBotones::~PedidosBotones() = default;

bool PedidosBotones::eventFilter(QObject *objeto, QEvent *evento) {
    if (evento->type() != PedidoBoton::Tipo())
        return QObject::eventFilter(objeto, evento);
    const auto *const pedido = static_cast<PedidoBoton *>(evento);
    if (pedido->que == PedidoBoton::Que::Enlace)
        escritorio_.AbrirDireccion(QUrl::fromUserInput(pedido->destino));
    else
        Tocar(pedido->destino);
    return true;
}

QUrl PedidosBotones::Sonido(const QString &ruta) const {
    QString conBarras = ruta;
    const QFileInfo archivo(QDir(carpeta_), conBarras.replace(u'\\', u'/'));
    if (archivo.isFile())
        return QUrl::fromLocalFile(archivo.absoluteFilePath());
    const QString incluido = QStringLiteral(":/sonidos/") + archivo.fileName();
    return QFileInfo::exists(incluido) ? QUrl(QStringLiteral("qrc") + incluido) : QUrl();
}

// Sounds stay with the device that was there when they were made.
void PedidosBotones::OlvidarAudio() {
    hayAudio_.reset();
    sonidos_.clear();
}

void PedidosBotones::Tocar(const QString &ruta) {
    if (!dispositivos_) {
        dispositivos_ = std::make_unique<QMediaDevices>();
        connect(dispositivos_.get(), &QMediaDevices::audioOutputsChanged, this,
                &PedidosBotones::OlvidarAudio);
    }
    if (!hayAudio_)
        hayAudio_ = !QMediaDevices::defaultAudioOutput().isNull();
    if (!*hayAudio_)
        return;
    std::shared_ptr<QSoundEffect> &sonido = sonidos_[ruta];
    if (!sonido) {
        sonido = std::make_shared<QSoundEffect>();
        sonido->setSource(Sonido(ruta));
    }
    sonido->play();
}

} // namespace tarvo
