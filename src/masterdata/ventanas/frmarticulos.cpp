#include "masterdata/ventanas/frmarticulos.h"

#include "desktop/ventanas/comboelidido.h"
#include "desktop/ventanas/estilo.h"
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
    constexpr int kLetrasCodigo = 16; // of a barcode, with its margins
    ficha_->txtCodBarras1->setMinimumWidth(kLetrasCodigo * fontMetrics().horizontalAdvance(u'0'));
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
    cboxFiltrarCategoria = new ComboElidido(this);
    cboxFiltrarCategoria->setObjectName(QStringLiteral("cboxFiltrarCategoria"));
    cboxFiltrarCategoria->setAccessibleName(QStringLiteral("Filtrar por categoría"));
    cboxFiltrarCategoria->setAccessibleDescription(
        cboxFiltrarCategoria->accessibleName()); // a name is its entry
    cboxFiltrarCategoria->setMinimumContentsLength(28);
    cboxFiltrarCategoria->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    PonerSobreLista(cboxFiltrarCategoria);
    setTabOrder(cboxFiltrarCategoria, &LV());
    txtIdCategoriaFiltro = new QLineEdit(this);
    txtIdCategoriaFiltro->setObjectName(QStringLiteral("txtIdCategoriaFiltro"));
    txtIdCategoriaFiltro->hide();
    picNuevaCategoria = new PanelCategoria(this);
    Flotar(picNuevaCategoria);
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
    connect(cboxFiltrarCategoria, &QComboBox::activated, this, [this](int indice) {
        logica_->FiltrarCategoria(indice);
        MostrarIdFiltro();
    });
}

void FrmArticulos::ConectarCategoria() {
    connect(picNuevaCategoria->cmdCatGuardar, &QPushButton::clicked, this, [this] {
        logica_->GuardarCategoria(picNuevaCategoria->txtCatCodigo->text(),
                                  picNuevaCategoria->txtCatCategoria->text());
        MostrarIdFiltro();
    });
    connect(picNuevaCategoria->cmdCatCancelar, &QPushButton::clicked, this,
            [this] { logica_->CancelarCategoria(); });
    connect(&Controles(), &ControlesDetalle::PanelAbierto, this, [this](PanelDetalle cual) {
        if (cual != PanelDetalle::Categoria)
            return;
        picNuevaCategoria->Vaciar();
        MostrarPanel(picNuevaCategoria, picNuevaCategoria->txtCatCodigo);
    });
    connect(&Controles(), &ControlesDetalle::PanelCerrado, this, [this](PanelDetalle cual) {
        if (cual == PanelDetalle::Categoria)
            OcultarPanel(picNuevaCategoria);
    });
}

void FrmArticulos::MostrarIdFiltro() {
    txtIdCategoriaFiltro->setText(QString::number(logica_->IdFiltro()));
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
    cboxFiltrarCategoria->clear();
    cboxFiltrarCategoria->addItems(entradas);
}

void FrmArticulos::ElegirFiltro(int indice) {
    cboxFiltrarCategoria->setCurrentIndex(indice);
}

void FrmArticulos::HabilitarFiltro(bool habilitado) {
    cboxFiltrarCategoria->setEnabled(habilitado);
    Marcar(cboxFiltrarCategoria, "sinDatos", !habilitado);
}

void FrmArticulos::EnfocarCatCodigo() {
    picNuevaCategoria->txtCatCodigo->setFocus();
}

void FrmArticulos::EnfocarCatCategoria() {
    picNuevaCategoria->txtCatCategoria->setFocus();
}

} // namespace tarvo
