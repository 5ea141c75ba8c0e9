#include "masterdata/ventanas/frmarticulos.h"

#include "desktop/ventanas/filtrocampos.h"
#include "desktop/ventanas/listavista.h"
#include "desktop/ventanas/solocaracteres.h"
#include "masterdata/ventanas/controlesdetalle.h"
#include "masterdata/ventanas/panelcategoria.h"
#include "ui_fichaarticulos.h"

#include <QPushButton>
#include <QTimer>
#include <QToolTip>

namespace tarvo {

namespace {

// The amount that the field shows is not the one that was typed.
void AvisarDecimales(const QLineEdit &campo) {
    QToolTip::showText(
        campo.mapToGlobal(QPoint(0, campo.height())),
        QStringLiteral("Se tomó como 0: los decimales de un importe menor que 1 se escriben con "
                       "punto (0.50)."));
}

} // namespace

FrmArticulos::FrmArticulos(const Servicios &servicios, Anfitrion &anfitrion, QWidget *padre)
    : VentanaCatalogo(servicios,
                      {QStringLiteral("frmArticulos"),
                       QStringLiteral("Artículos"),
                       QStringLiteral("LVArticulos"),
                       {QStringLiteral("&Código"), QStringLiteral("&Artículo")},
                       ReporteArticulos},
                      padre),
      ficha_(std::make_unique<Ui::FichaArticulos>()) {
    ficha_->setupUi(Ficha());
    CrearFiltro();
    auto logica = std::make_unique<ArticulosLogica>(servicios.frmBases, servicios.preguntas, Controles(),
                                                    *this, &anfitrion);
    logica_ = logica.get();
    Montar(std::move(logica));
    ConectarFicha();
    ConectarCategoria();
    logica_->Cargar();
    MostrarIdFiltro();
}

FrmArticulos::~FrmArticulos() = default;

void FrmArticulos::CrearFiltro() {
    cboxFiltrarCategoria_ = new QComboBox(this);
    cboxFiltrarCategoria_->setObjectName(QStringLiteral("cboxFiltrarCategoria"));
    cboxFiltrarCategoria_->setAccessibleName(QStringLiteral("Filtrar por categoría"));
    cboxFiltrarCategoria_->setAccessibleDescription(
        cboxFiltrarCategoria_->accessibleName()); // a name is its entry
    cboxFiltrarCategoria_->setMinimumContentsLength(28);
    cboxFiltrarCategoria_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    PonerSobreLista(cboxFiltrarCategoria_);
    setTabOrder(cboxFiltrarCategoria_, &LV());
    txtIdCategoriaFiltro_ = new QLineEdit(this);
    txtIdCategoriaFiltro_->setObjectName(QStringLiteral("txtIdCategoriaFiltro"));
    txtIdCategoriaFiltro_->hide();
    picNuevaCategoria_ = new PanelCategoria(this);
    Flotar(picNuevaCategoria_);
}

void FrmArticulos::ConectarImporte(QLineEdit *campo, int posicion) {
    SoloCaracteres(campo, QStringLiteral("0123456789.,"));
    Filtro().AlFoco(campo, [this, campo, posicion](bool entra) {
        if (entra)
            logica_->EntrarImporte(posicion);
        else if (!logica_->SalirImporte(posicion))
            QTimer::singleShot(0, campo, [campo] { AvisarDecimales(*campo); });
    });
}

void FrmArticulos::ConectarCantidad(QLineEdit *campo, int posicion) {
    SoloCaracteres(campo, QStringLiteral("0123456789"));
    Filtro().AlFoco(campo, [this, posicion](bool entra) {
        if (!entra)
            logica_->SalirCantidad(posicion);
    });
}

void FrmArticulos::ConectarFicha() {
    ConectarImporte(ficha_->txtPCompra, ArticulosLogica::kPCompra);
    ConectarImporte(ficha_->txtSubtotal, ArticulosLogica::kSubtotal);
    ConectarCantidad(ficha_->txtStock, ArticulosLogica::kStock);
    ConectarCantidad(ficha_->txtStockMin, ArticulosLogica::kStockMin);
    Filtro().AlFoco(ficha_->txtCodigo, [this](bool entra) {
        if (!entra)
            logica_->SalirCodigo();
    });
    TrasCampo(ficha_->txtStockMin);
    connect(ficha_->cboxCategoria, &QComboBox::activated, this, [this] { logica_->ElegirCategoria(); });
    connect(ficha_->cboxTipoIVA, &QComboBox::activated, this, [this] { logica_->ElegirTipoIVA(); });
    connect(ficha_->cboxProveedor, &QComboBox::activated, this, [this] { logica_->ElegirProveedor(); });
    connect(cboxFiltrarCategoria_, &QComboBox::activated, this, [this](int indice) {
        logica_->FiltrarCategoria(indice);
        MostrarIdFiltro();
    });
}

void FrmArticulos::ConectarCategoria() {
    connect(picNuevaCategoria_->cmdCatGuardar, &QPushButton::clicked, this, [this] {
        logica_->GuardarCategoria(picNuevaCategoria_->txtCatCodigo->text(),
                                  picNuevaCategoria_->txtCatCategoria->text());
        MostrarIdFiltro();
    });
    connect(picNuevaCategoria_->cmdCatCancelar, &QPushButton::clicked, this,
            [this] { logica_->CancelarCategoria(); });
    connect(&Controles(), &ControlesDetalle::PanelAbierto, this, [this](PanelDetalle cual) {
        if (cual != PanelDetalle::Categoria)
            return;
        picNuevaCategoria_->Vaciar();
        MostrarPanel(picNuevaCategoria_, picNuevaCategoria_->txtCatCodigo);
    });
    connect(&Controles(), &ControlesDetalle::PanelCerrado, this, [this](PanelDetalle cual) {
        if (cual == PanelDetalle::Categoria)
            OcultarPanel(picNuevaCategoria_);
    });
}

void FrmArticulos::MostrarIdFiltro() {
    txtIdCategoriaFiltro_->setText(QString::number(logica_->IdFiltro()));
    LV().PonerTextoVacio(logica_->IdFiltro() == 0
                             ? QStringLiteral("Todavía no hay artículos. Nuevo agrega el primero.")
                             : QStringLiteral("No hay artículos en esta categoría."));
}

bool FrmArticulos::Escapar() {
    if (logica_->Panel() == PanelDetalle::Categoria) {
        logica_->CancelarCategoria();
        return true;
    }
    // With no row in the list a new article isn't given up by Escape.
    const bool primero =
        EntradaEnCurso() && Lista().Filas() == 0 && logica_->Panel() == PanelDetalle::Ninguno;
    return !primero && VentanaCatalogo::Escapar();
}

// The name takes what the amounts leave; the code makes room for the scroll bar.
void FrmArticulos::AjustarColumnas() {
    constexpr int otras = 7420;
    constexpr int minimo = 3000;
    LV().PonerAncho(0, LV().DesbordaFilas() ? 1210 : 1450);
    LV().PonerAncho(1, qMax(minimo, AnchoListaTwips() - otras));
}

// --- VistaFiltro

void FrmArticulos::PonerFiltros(const QStringList &entradas) {
    cboxFiltrarCategoria_->clear();
    cboxFiltrarCategoria_->addItems(entradas);
}

void FrmArticulos::ElegirFiltro(int indice) {
    cboxFiltrarCategoria_->setCurrentIndex(indice);
}

void FrmArticulos::HabilitarFiltro(bool habilitado) {
    cboxFiltrarCategoria_->setEnabled(habilitado);
    MarcarSinDatos(cboxFiltrarCategoria_, !habilitado);
}

void FrmArticulos::EnfocarCatCodigo() {
    picNuevaCategoria_->txtCatCodigo->setFocus();
}

void FrmArticulos::EnfocarCatCategoria() {
    picNuevaCategoria_->txtCatCategoria->setFocus();
}

} // namespace tarvo
