#include "interchange/ventanas/frmrespaldo.h"

#include "desktop/listatexto.h"
#include "desktop/preguntas.h"
#include "desktop/ventanas/filtrocampos.h"
#include "interchange/ventanas/entradabloqueada.h"
#include "ui_frmrespaldo.h"

#include <QApplication>
#include <QCheckBox>
#include <QKeyEvent>
#include <QTimer>

#include <algorithm>

namespace tarvo {

namespace {

constexpr int kEspera = 1000; // ms from the end of an operation until its bar goes
constexpr int kCuadro = 30;   // ms between two paintings of a moving bar
constexpr qint64 kMega = 1'000'000;

QString Megas(qint64 bytes) {
    return QString::number((bytes + kMega / 2) / kMega);
}

} // namespace

FrmRespaldo::FrmRespaldo(const Servicios &servicios, QWidget *padre)
    : Dialogo(padre),
      ui_(std::make_unique<Ui::FrmRespaldo>()),
      servicios_(servicios),
      logica_(servicios),
      respaldos_(new ListaTexto({{.titulo = QStringLiteral("Respaldo"), .ancho = 3000}}, this)),
      Timer(new QTimer(this)),
      respaldo_((ui_->setupUi(this),
                 Marcha{ui_->tarjetaMarcha, ui_->PB1, ui_->lblAguarde, ui_->lblDetalle, ui_->cmdIniciar})),
      recuperacion_{ui_->tarjetaMarcha1, ui_->PB2, ui_->lblAguarde1, ui_->lblDetalle1,
                    ui_->cmdIniciarRecuperar} {
    Timer->setObjectName(QStringLiteral("Timer"));
    Timer->setSingleShot(true);
    Timer->setInterval(kEspera);
    ui_->lstRecuperar->Mostrar(respaldos_);
    CrearCasillas();
    Conectar();
    ui_->txtRuta->setText(logica_.RutaInicial());
    ui_->txtRutaRecuperar->setText(logica_.RutaInicial());
    for (const Marcha *marcha : {&respaldo_, &recuperacion_}) {
        for (QWidget *parte : marcha->Partes()) {
            QSizePolicy politica = parte->sizePolicy();
            politica.setRetainSizeWhenHidden(true);
            parte->setSizePolicy(politica);
        }
        MostrarMarcha(*marcha, false);
    }
    MostrarPanel(false);
}

FrmRespaldo::~FrmRespaldo() = default;

std::array<QWidget *, 4> FrmRespaldo::Marcha::Partes() const {
    return {tarjeta, barra, aguarde, detalle};
}

QCheckBox *FrmRespaldo::NuevaCasilla(const char *nombre, std::size_t base, const QString &titulo) {
    auto *casilla = new QCheckBox(titulo, this);
    casilla->setObjectName(QStringLiteral("%1(%2)").arg(QString::fromLatin1(nombre)).arg(base));
    return casilla;
}

// A backup is of everything, unless the operator says otherwise.
void FrmRespaldo::CrearCasillas() {
    for (std::size_t i = 0; i < kBases; ++i) {
        const QString &titulo = BasesRespaldo()[i].titulo;
        const int fila = static_cast<int>(i);
        chkRespaldar[i] = NuevaCasilla("chkRespaldar", i, titulo);
        chkRespaldar[i]->setChecked(true);
        chkVaciar[i] = NuevaCasilla("chkVaciar", i, QStringLiteral("Vaciar"));
        chkVaciar[i]->setAccessibleName(QStringLiteral("Vaciar ") + BasesRespaldo()[i].nombre);
        chkRecuperar[i] = NuevaCasilla("chkRecuperar", i, titulo);
        chkRecuperar[i]->setEnabled(false);
        ui_->rejillaBases->addWidget(chkRespaldar[i], fila, 0);
        ui_->rejillaBases->addWidget(chkVaciar[i], fila, 1);
        ui_->columnaRecuperar->insertWidget(fila, chkRecuperar[i]);
    }
    QWidget *anterior = ui_->cmdRecuperar;
    for (std::size_t i = 0; i < kBases; ++i)
        for (QCheckBox *casilla : {chkRespaldar[i], chkVaciar[i]}) {
            setTabOrder(anterior, casilla);
            anterior = casilla;
        }
    setTabOrder(anterior, ui_->txtRuta);
    anterior = ui_->lstRecuperar;
    for (QCheckBox *casilla : chkRecuperar) {
        setTabOrder(anterior, casilla);
        anterior = casilla;
    }
    setTabOrder(anterior, ui_->cmdIniciarRecuperar);
}

void FrmRespaldo::Conectar() {
    connect(ui_->cmdRespaldar, &QPushButton::clicked, this, &FrmRespaldo::cmdRespaldar_Click);
    connect(ui_->cmdRecuperar, &QPushButton::clicked, this, &FrmRespaldo::cmdRecuperar_Click);
    connect(ui_->cmdExaminar, &QPushButton::clicked, this, &FrmRespaldo::cmdExaminar_Click);
    connect(ui_->cmdExaminarRecuperar, &QPushButton::clicked, this, &FrmRespaldo::cmdExaminarRecuperar_Click);
    connect(ui_->cmdIniciar, &QPushButton::clicked, this, &FrmRespaldo::cmdIniciar_Click);
    connect(ui_->cmdIniciarRecuperar, &QPushButton::clicked, this, &FrmRespaldo::cmdIniciarRecuperar_Click);
    connect(ui_->txtRutaRecuperar, &QLineEdit::editingFinished, this, [this] {
        if (ui_->txtRutaRecuperar->text() != rutaListada_) // a choice in the list stays else
            LlenarRespaldos();
    });
    connect(ui_->lstRecuperar, &ListaVista::FilaPulsada, this, &FrmRespaldo::lstRecuperar_Click);
    connect(Timer, &QTimer::timeout, this, &FrmRespaldo::Timer_Timer);
    for (std::size_t i = 0; i < kBases; ++i) {
        connect(chkRespaldar[i], &QCheckBox::toggled, this, [this, i] { chkRespaldar_Click(i); });
        connect(chkVaciar[i], &QCheckBox::toggled, this, [this, i] { chkVaciar_Click(i); });
    }
    ConectarTeclas(*new FiltroCampos(this));
}

void FrmRespaldo::ConectarTeclas(FiltroCampos &filtro) {
    filtro.AlFlecha(ui_->cmdRespaldar, [this](int paso) {
        if (paso < 0) {
            cmdRecuperar_Click();
            ui_->cmdRecuperar->setFocus();
        }
    });
    filtro.AlFlecha(ui_->cmdRecuperar, [this](int paso) {
        if (paso > 0) {
            cmdRespaldar_Click();
            ui_->cmdRespaldar->setFocus();
        }
    });
    filtro.AlEscapar([this] {
        reject();
        return true;
    });
}

Elegidas FrmRespaldo::Marcadas(const Casillas &casillas) {
    Elegidas marcadas{};
    for (std::size_t i = 0; i < kBases; ++i)
        marcadas[i] = casillas[i]->isEnabled() && casillas[i]->isChecked();
    return marcadas;
}

// --- the two panels

void FrmRespaldo::MostrarPanel(bool recuperar) {
    ui_->paneles->setCurrentWidget(recuperar ? ui_->frRecuperar : ui_->frRespaldar);
    ui_->shRespaldar->setVisible(!recuperar);
    ui_->shRecuperar->setVisible(recuperar);
    ui_->cmdRespaldar->setChecked(!recuperar);
    ui_->cmdRecuperar->setChecked(recuperar);
}

void FrmRespaldo::cmdRespaldar_Click() {
    MostrarPanel(false);
}

void FrmRespaldo::cmdRecuperar_Click() {
    MostrarPanel(true);
    LlenarRespaldos();
}

void FrmRespaldo::cmdExaminar_Click() {
    const QString ruta = logica_.ElegirCarpetaRespaldo();
    if (!ruta.isEmpty())
        ui_->txtRuta->setText(ruta);
}

void FrmRespaldo::cmdExaminarRecuperar_Click() {
    const QString ruta = logica_.ElegirCarpetaRecuperacion();
    if (ruta.isEmpty())
        return;
    ui_->txtRutaRecuperar->setText(ruta);
    LlenarRespaldos();
}

void FrmRespaldo::chkRespaldar_Click(std::size_t base) {
    const bool marcada = chkRespaldar[base]->isChecked();
    if (!marcada)
        chkVaciar[base]->setChecked(false);
    chkVaciar[base]->setEnabled(marcada);
}

void FrmRespaldo::chkVaciar_Click(std::size_t base) {
    if (chkVaciar[base]->isChecked() && !logica_.PuedeVaciar(base))
        chkVaciar[base]->setChecked(false);
}

void FrmRespaldo::LlenarRespaldos() {
    rutaListada_ = ui_->txtRutaRecuperar->text();
    ColumnaTexto nombres;
    for (const QString &respaldo : logica_.Respaldos(rutaListada_))
        nombres.Agregar(respaldo.toStdString());
    respaldos_->Asignar({.celdas = {nombres}});
    ui_->lstRecuperar->SeleccionarFila(respaldos_->Filas() > 0 ? 0 : -1);
    lstRecuperar_Click();
}

QString FrmRespaldo::RespaldoElegido() const {
    const int fila = ui_->lstRecuperar->FilaActual();
    return fila < 0 ? QString() : rutaListada_ + QLatin1Char('/') + respaldos_->Celda(fila, 0);
}

void FrmRespaldo::lstRecuperar_Click() {
    const QString carpeta = RespaldoElegido();
    const Elegidas hay = carpeta.isEmpty() ? Elegidas{} : logica_.Recuperables(carpeta);
    for (std::size_t i = 0; i < kBases; ++i) {
        chkRecuperar[i]->setEnabled(hay[i]);
        if (!hay[i])
            chkRecuperar[i]->setChecked(false);
    }
}

// --- the operations

void FrmRespaldo::cmdIniciar_Click() {
    if (!logica_.PuedeRespaldar(ui_->txtRuta->text(), Marcadas(chkRespaldar))) {
        chkRespaldar[0]->setFocus();
        return;
    }
    Trabajar(respaldo_, [this](Avance &avance) {
        return logica_.Respaldar(ui_->txtRuta->text(), Marcadas(chkRespaldar), Marcadas(chkVaciar), avance);
    });
}

void FrmRespaldo::cmdIniciarRecuperar_Click() {
    if (logica_.PuedeRecuperar(respaldos_->Filas() > 0, Marcadas(chkRecuperar)))
        Trabajar(recuperacion_, [this](Avance &avance) {
            return logica_.Recuperar(RespaldoElegido(), Marcadas(chkRecuperar), avance);
        });
}

template <typename Operacion> void FrmRespaldo::Trabajar(const Marcha &marcha, Operacion operacion) {
    (&marcha == &respaldo_ ? ui_->cmdRespaldar : ui_->cmdRecuperar)->setFocus();
    MostrarMarcha(marcha, true);
    marcha.barra->setRange(0, kBases);
    marcha.barra->setValue(1);
    marcha_ = &marcha;
    salir_ = false;
    bloqueo_ = std::make_unique<EntradaBloqueada>();
    const Desenlace desenlace = operacion(static_cast<Avance &>(*this));
    bloqueo_.reset();
    marcha.barra->PonerParte(0);
    marcha.detalle->clear();
    Acabar(desenlace);
}

// After a failure the button stays disabled and the data stay closed until the window ends.
void FrmRespaldo::Acabar(const Desenlace &desenlace) {
    if (desenlace.fin == Fin::Fallido) {
        marcha_->detalle->setText(QStringLiteral("cierre la ventana para intentarlo otra vez"));
        servicios_.preguntas.Mostrar(desenlace.texto, Icono::Critico);
    } else {
        if (marcha_ == &respaldo_ && desenlace.fin == Fin::Completo)
            for (QCheckBox *casilla : chkVaciar)
                casilla->setChecked(false);
        logica_.Reabrir();
        Timer->start();
        servicios_.preguntas.Informar(desenlace.texto);
    }
    if (salir_)
        reject();
}

void FrmRespaldo::Timer_Timer() {
    for (const Marcha *marcha : {&respaldo_, &recuperacion_})
        MostrarMarcha(*marcha, false);
}

void FrmRespaldo::MostrarMarcha(const Marcha &marcha, bool visible) {
    for (QWidget *parte : marcha.Partes())
        parte->setVisible(visible);
    marcha.iniciar->setEnabled(!visible);
}

bool FrmRespaldo::Sigue() {
    Respirar();
    return !salir_;
}

void FrmRespaldo::Empieza(const QString &archivo, qint64 bytes) {
    archivo_ = archivo;
    bytes_ = bytes;
    Hecho(0);
}

void FrmRespaldo::Hecho(qint64 bytes) {
    if (bytes > 0 && pausa_.isValid() && pausa_.elapsed() < kCuadro)
        return;
    marcha_->barra->PonerParte(bytes_ == 0 ? 0 : static_cast<double>(bytes) / static_cast<double>(bytes_));
    marcha_->detalle->setText(
        bytes_ < kMega ? archivo_
                       : QStringLiteral("%1 · %2 de %3 MB").arg(archivo_, Megas(bytes), Megas(bytes_)));
    Respirar();
}

void FrmRespaldo::Avanza() {
    marcha_->barra->PonerParte(0);
    marcha_->barra->setValue(std::min<int>(marcha_->barra->value() + 1, marcha_->barra->maximum()));
    Respirar();
}

// The window paints itself; the operator's input is dropped, but for his wish to leave.
void FrmRespaldo::Respirar() {
    QApplication::processEvents();
    salir_ = salir_ || bloqueo_->SalidaPedida();
    pausa_.start();
}

void FrmRespaldo::done(int resultado) {
    if (bloqueo_)
        return;
    logica_.Reabrir();
    Dialogo::done(resultado);
    if (parentWidget() != nullptr) // behind a box that closed at the same moment nobody would get the keys
        parentWidget()->window()->activateWindow();
}

} // namespace tarvo
