#include "documents/ventanas/frmfactura.h"

#include "desktop/ventanas/estilo.h"
#include "desktop/ventanas/filtrocampos.h"
#include "desktop/ventanas/tamano.h"
#include "documents/ventanas/frmfacturaadmin.h"
#include "documents/ventanas/frmfacturaetiqueta.h"
#include "store/store.h"
#include "ui_frmfactura.h"

#include <QFileInfo>
#include <QScrollBar>
#include <QShortcut>

#include <algorithm>
#include <chrono>

namespace tarvo {

namespace {

constexpr QSize kTamano{980, 620};
constexpr int kBorde = 24; // pixels inside what is seen of the sheet, where a held piece moves the sheet
constexpr int kPasoMayor = 24;
constexpr std::chrono::milliseconds kCuadro{30};

// Pixels by which the sheet moves at a time, for a cursor at `valor` of `largo`.
int Paso(int valor, int largo) {
    constexpr int kFreno = 3;
    const int dentro = std::clamp(valor, kBorde, std::max(kBorde, largo - kBorde));
    return std::clamp((valor - dentro) / kFreno, -kPasoMayor, kPasoMayor);
}

QString Milimetros(float twips) {
    constexpr double kTwipsPorMilimetro = 1440 / 25.4;
    return QString::number(static_cast<double>(twips) / kTwipsPorMilimetro, 'f', 1).replace(u'.', u',');
}

} // namespace

FrmFactura::FrmFactura(const Servicios &servicios, QWidget *padre)
    : FrmFactura(servicios, QFileInfo(servicios.frmBases.CarpetaDatos()).path() + QStringLiteral("/facturas"),
                 padre) {}

FrmFactura::FrmFactura(const Servicios &servicios, const QString &carpetaFacturas, QWidget *padre)
    : Dialogo(padre), disenador_(servicios, carpetaFacturas), ui_(std::make_unique<Ui::FrmFactura>()) {
    ui_->setupUi(this);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    auto *filtro = new FiltroCampos(this);
    filtro->AlEscapar([this] {
        if (!disenador_.Arrastrando())
            reject();
        return true;
    });
    ConectarOrdenes();
    CrearTeclas();
    disenador_.CargarInicial();
    ui_->picFactura->Mostrar(disenador_);
    Presentar();
    ui_->cmdAbrir->setFocus();
}

// The canvas goes while its logic lives: a piece that loses the focus by dying still asks it.
FrmFactura::~FrmFactura() {
    ui_->picFactura->disconnect(this);
    delete ui_->picFactura;
}

void FrmFactura::ConectarOrdenes() {
    connect(ui_->cmdAbrir, &QPushButton::clicked, &disenador_, &Disenador::Abrir);
    connect(ui_->cmdGuardar, &QPushButton::clicked, &disenador_, &Disenador::Guardar);
    connect(ui_->cmdInsEtiqueta, &QPushButton::clicked, this, &FrmFactura::InsertarEtiqueta);
    connect(ui_->cmdAdminCampos, &QPushButton::clicked, this, &FrmFactura::AdministrarCampos);
    connect(ui_->cmdSelImagen, &QPushButton::clicked, &disenador_, &Disenador::ElegirLogo);
    connect(ui_->cmdSelFondo, &QPushButton::clicked, &disenador_, &Disenador::ElegirFondo);
    connect(ui_->cmdImprimir, &QPushButton::clicked, &disenador_, &Disenador::Imprimir);
    connect(ui_->picFactura, &Lienzo::TrabajoCambiado, this, &FrmFactura::MostrarPosicion);
    connect(ui_->picFactura, &Lienzo::CursorMovido, this, &FrmFactura::VigilarBorde);
    connect(ui_->picFactura, &Lienzo::PiezaSoltada, &desplazamiento_, &QTimer::stop);
    connect(&desplazamiento_, &QTimer::timeout, this, &FrmFactura::Desplazar);
    connect(&disenador_, &Disenador::NoGuardado, this, [this](const QString &motivo) {
        ui_->lblPosicion->setText(QStringLiteral("No se guardó: %1").arg(motivo));
    });
}

// While a piece is held at the border of what is seen of the sheet, the sheet moves: the faster the farther
// out.
void FrmFactura::VigilarBorde(const QPoint &lugar) {
    const QWidget *vista = ui_->areaHoja->viewport();
    const QPoint enVista = ui_->picFactura->mapTo(vista, lugar);
    paso_ = {Paso(enVista.x(), vista->width()), Paso(enVista.y(), vista->height())};
    if (paso_.isNull())
        desplazamiento_.stop();
    else if (!desplazamiento_.isActive())
        desplazamiento_.start(kCuadro);
}

void FrmFactura::Desplazar() {
    QScrollBar *const horizontal = ui_->areaHoja->horizontalScrollBar();
    QScrollBar *const vertical = ui_->areaHoja->verticalScrollBar();
    horizontal->setValue(horizontal->value() + paso_.x());
    vertical->setValue(vertical->value() + paso_.y());
    ui_->picFactura->Seguir();
}

void FrmFactura::CrearTeclas() {
    const auto *deshacer = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_Z), this);
    const auto *rehacer = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_Y), this);
    connect(deshacer, &QShortcut::activated, &disenador_, &Disenador::Deshacer);
    connect(rehacer, &QShortcut::activated, &disenador_, &Disenador::Rehacer);
}

void FrmFactura::Presentar() {
    QPalette mesa = ui_->mesa->palette();
    mesa.setColor(QPalette::Window, colores::kEncabezado);
    ui_->mesa->setPalette(mesa);
    ui_->mesa->setAutoFillBackground(true);
    const QSize medida = kTamano * Crecido();
    resize(LoQueCabe(*this, medida));
    if (width() >= medida.width())
        return;
    QSizePolicy politica = ui_->lblTeclas->sizePolicy();
    politica.setHorizontalPolicy(QSizePolicy::Ignored); // the sheet needs the room more than the hints
    ui_->lblTeclas->setSizePolicy(politica);
}

void FrmFactura::MostrarPosicion() {
    const int numero = ui_->picFactura->EnTrabajo();
    if (numero < 0) {
        ui_->lblPosicion->clear();
        return;
    }
    const Pieza &pieza = disenador_.De(numero);
    const QString rotulo = fontMetrics().elidedText(disenador_.Rotulo(numero), Qt::ElideRight, width() / 4);
    ui_->lblPosicion->setText(
        QStringLiteral("%1 · %2 mm · %3 mm").arg(rotulo, Milimetros(pieza.left), Milimetros(pieza.top)));
}

void FrmFactura::InsertarEtiqueta() {
    FrmFacturaEtiqueta dialogo(disenador_, this);
    dialogo.exec();
}

void FrmFactura::AdministrarCampos() {
    disenador_.Agrupar(QStringLiteral("Administrar campos"), [this] {
        FrmFacturaAdmin dialogo(disenador_, this);
        dialogo.exec();
    });
}

} // namespace tarvo
