#include "shell/ventanas/programa.h"

#include "documents/ventanas/impresorassistema.h"
#include "interchange/reemplazo.h"
#include "masterdata/ventanas/frmusuarios.h"
#include "shell/ajustesprincipal.h"
#include "shell/apertura.h"
#include "shell/medidas.h"
#include "shell/ventanas/composicion.h"
#include "shell/ventanas/frmprincipal.h"
#include "shell/ventanas/frmsplash.h"
#include "shell/ventanas/pedidosbotones.h"
#include "shell/ventanas/senalfin.h"
#include "store/instalacion.h"
#include "store/store.h"

#include <QDebug>
#include <QFileInfo>
#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <QWindow>

namespace tarvo {

Programa::Programa(Preguntas &preguntas, QString carpetaPrograma, QString carpetaUsuario)
    : preguntas_(preguntas),
      carpetaPrograma_(std::move(carpetaPrograma)),
      carpetaUsuario_(std::move(carpetaUsuario)) {}

Programa::~Programa() = default;

int Programa::Ejecutar(const OpcionesInicio &opciones) {
    opciones_ = opciones;
    // Between the splash and the main window no window is open.
    QGuiApplication::setQuitOnLastWindowClosed(false);
    // No question holds up a system that is going down: edits are committed, a half-done entry is not kept.
    SenalFin senal;
    connect(&senal, &SenalFin::Pedida, this, [] { QCoreApplication::exit(0); });
    if (opciones_.directo || !AjustesPrincipal(ajustes_).Presentacion())
        QTimer::singleShot(0, this, &Programa::Arrancar);
    else
        Presentar();
    const int codigo = QCoreApplication::exec();
    Cerrar();
    return codigo;
}

void Programa::Presentar() {
    frmSplash_ = std::make_unique<FrmSplash>();
    connect(frmSplash_.get(), &FrmSplash::Terminado, this, &Programa::Arrancar);
    frmSplash_->show();
}

void Programa::Arrancar() {
    try {
        const ResultadoApertura resultado = AbrirDatos();
        if (resultado.estado == EstadoApertura::Bloqueada)
            Abandonar(MensajeBloqueada(), Icono::Informacion);
        else
            MostrarPrincipal();
    } catch (const std::exception &error) {
        Abandonar(QString::fromUtf8(error.what()), Icono::Critico);
    }
}

ResultadoApertura Programa::AbrirDatos() {
    const QString datos =
        PrepararDatos(EstaInstalado(carpetaPrograma_) ? carpetaUsuario_ : carpetaPrograma_, carpetaUsuario_);
    impresoras_ =
        std::make_unique<ImpresorasSistema>(reloj_, QFileInfo(datos).path() + QStringLiteral("/Impresos"));
    frmBases_ = std::make_unique<FrmBases>(datos, LeerRegional(ajustes_));
    frmBases_->AlAbrirse([this](const ResultadoApertura &resultado) { AnotarApertura(resultado); });
    frmBases_->AlDanarse(
        [this](const QString &archivo, const QString &motivo) { AnotarDano(archivo, motivo); });
    return AbrirBases(*frmBases_);
}

void Programa::MostrarPrincipal() {
    const Servicios servicios{*frmBases_, preguntas_, reloj_, *impresoras_, ajustes_, escritorio_};
    pedidos_ = std::make_unique<PedidosBotones>(escritorio_, carpetaPrograma_);
    frmPrincipal_ = std::make_unique<FrmPrincipal>(servicios, Componer(servicios), carpetaPrograma_);
    MostrarAvisos();
    QGuiApplication::setQuitOnLastWindowClosed(true);
    frmPrincipal_->Presentar(ATwips(frmPrincipal_->screen()->size().width()));
    if (opciones_.usuarios)
        AbrirUsuarios(servicios);
}

// They stand over the main window, which has its place once it is active; where the desktop keeps the focus
// from it they don't wait for that.
void Programa::AbrirUsuarios(const Servicios &servicios) {
    constexpr int kEsperaMayor = 1000; // ms
    const QWindow *const ventana = frmPrincipal_->windowHandle();
    auto *const espera = new QTimer(frmPrincipal_.get());
    espera->setSingleShot(true);
    espera->callOnTimeout([this, servicios] { MostrarUsuarios(servicios, frmPrincipal_.get()); });
    connect(ventana, &QWindow::activeChanged, espera, [espera] {
        if (espera->isActive())
            espera->start(0);
    });
    espera->start(ventana->isActive() ? 0 : kEsperaMayor);
}

// A restore may have mended what an earlier opening told.
void Programa::AnotarApertura(const ResultadoApertura &resultado) {
    avisosDatos_ = {AvisoApertura(resultado)};
    MostrarAvisos();
}

void Programa::AnotarDano(const QString &archivo, const QString &motivo) {
    avisosDatos_.prepend(AvisoDano(archivo, motivo));
    MostrarAvisos();
}

void Programa::MostrarAvisos() {
    if (frmPrincipal_)
        frmPrincipal_->PonerAviso(
            UnirAvisos(avisosDatos_ + QStringList{AvisoLugar(frmBases_->CarpetaDatos(), carpetaPrograma_)}));
}

void Programa::Abandonar(const QString &mensaje, Icono icono) {
    if (frmSplash_)
        frmSplash_->hide();
    preguntas_.Mostrar(mensaje, icono);
    QCoreApplication::exit(1);
}

// The main window has closed the data when the operator closed it; after a signal it is done here.
void Programa::Cerrar() {
    frmPrincipal_.reset();
    try {
        if (frmBases_)
            frmBases_->Cerrar();
    } catch (const std::exception &error) {
        qWarning() << "closing the data failed:" << error.what();
    }
}

} // namespace tarvo
