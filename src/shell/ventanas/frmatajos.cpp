#include "shell/ventanas/frmatajos.h"

#include "desktop/preguntas.h"
#include "desktop/ventanas/filtrocampos.h"
#include "desktop/ventanas/ritmoteclas.h"
#include "desktop/ventanas/tamano.h"
#include "ui_frmatajos.h"

#include <QKeyEvent>
#include <QLineEdit>

namespace tarvo {

namespace {

enum Columna { kEntrada, kTecla, kClave };

} // namespace

FrmAtajos::FrmAtajos(Atajos &atajos, Preguntas &preguntas, std::function<void()> alCambiar, QWidget *padre)
    : QDialog(padre),
      atajos_(atajos),
      preguntas_(preguntas),
      alCambiar_(std::move(alCambiar)),
      lista_({{.titulo = QStringLiteral("Entrada"), .ancho = 4200},
              {.titulo = QStringLiteral("Tecla"), .ancho = 2200},
              {.titulo = QStringLiteral("clave"), .oculta = true}}),
      ui_(std::make_unique<Ui::FrmAtajos>()) {
    ui_->setupUi(this);
    ui_->LVAtajos->Mostrar(&lista_);
    connect(ui_->LVAtajos, &ListaVista::FilaPulsada, this, [this] { MostrarTecla(); });
    connect(&lista_, &QAbstractItemModel::layoutChanged, this, &FrmAtajos::MostrarTecla);
    connect(ui_->cmdAsignar, &QPushButton::clicked, this, &FrmAtajos::cmdAsignar_Click);
    connect(ui_->cmdRestablecer, &QPushButton::clicked, this, &FrmAtajos::cmdRestablecer_Click);
    connect(ui_->cmdRestablecerTodo, &QPushButton::clicked, this, &FrmAtajos::cmdRestablecerTodo_Click);
    connect(ui_->cmdCerrar, &QPushButton::clicked, this, &QDialog::accept);
    ui_->kseTecla->findChild<QLineEdit *>()->setAccessibleName(
        QStringLiteral("Tecla nueva")); // it gets the focus
    // One stroke is a key; of more the last one counts.
    connect(ui_->kseTecla, &QKeySequenceEdit::keySequenceChanged, this, [this](const QKeySequence &teclas) {
        if (teclas.count() > 1)
            ui_->kseTecla->setKeySequence(QKeySequence(teclas[uint(teclas.count()) - 1]));
    });
    auto *filtro = new FiltroCampos(this);
    ui_->kseTecla->installEventFilter(this);
    filtro->AlEntrar(ui_->LVAtajos, [this] { ui_->kseTecla->setFocus(); });
    for (const Entrada entrada : Atajos::Asignables()) {
        const DatosEntrada &datos = DatosDe(entrada);
        lista_.AgregarFila({Atajos::NombreDe(entrada), {}, datos.clave.toString()});
    }
    Llenar();
    ui_->LVAtajos->SeleccionarFila(0);
    MostrarTecla();
    ui_->LVAtajos->setFocus();
    resize(LoQueCabe(*this, size() * Crecido()));
}

FrmAtajos::~FrmAtajos() = default;

// Enter, Escape and the underlined letters work in the field of the key as elsewhere.
bool FrmAtajos::eventFilter(QObject *objeto, QEvent *evento) {
    if (evento->type() != QEvent::KeyPress && evento->type() != QEvent::ShortcutOverride)
        return QDialog::eventFilter(objeto, evento);
    const auto *const tecla = static_cast<QKeyEvent *>(evento);
    const bool entra = EsEntrar(tecla->key());
    if (tecla->modifiers() == Qt::AltModifier)
        return true;
    if ((!entra && tecla->key() != Qt::Key_Escape) || tecla->modifiers() != Qt::NoModifier)
        return QDialog::eventFilter(objeto, evento);
    if (evento->type() == QEvent::KeyPress)
        entra ? cmdAsignar_Click() : reject();
    return true;
}

void FrmAtajos::Llenar() {
    for (int fila = 0; fila < lista_.Filas(); ++fila)
        for (const Entrada entrada : Atajos::Asignables())
            if (lista_.Celda(fila, kClave) == DatosDe(entrada).clave)
                lista_.PonerCelda(fila, kTecla, atajos_.De(entrada).toString(QKeySequence::NativeText));
}

Entrada FrmAtajos::Elegida() const {
    const QString clave = lista_.Celda(ui_->LVAtajos->FilaActual(), kClave);
    for (const Entrada entrada : Atajos::Asignables())
        if (DatosDe(entrada).clave == clave)
            return entrada;
    Q_UNREACHABLE();
}

void FrmAtajos::MostrarTecla() {
    ui_->kseTecla->setKeySequence(atajos_.De(Elegida()));
}

void FrmAtajos::cmdAsignar_Click() {
    Asignar(ui_->kseTecla->keySequence());
}

void FrmAtajos::cmdRestablecer_Click() {
    if (atajos_.Restablecer(Elegida()))
        Cambiados();
    else
        preguntas_.Informar(atajos_.MotivoRechazo(Elegida(), Atajos::Inicial(Elegida())));
}

void FrmAtajos::cmdRestablecerTodo_Click() {
    if (!preguntas_.Confirma(QStringLiteral("Está seguro de querer restablecer todas las teclas?"),
                             Respuesta::No))
        return;
    atajos_.RestablecerTodos();
    Cambiados();
}

void FrmAtajos::Asignar(const QKeySequence &tecla) {
    const Entrada entrada = Elegida();
    if (const QString motivo = atajos_.MotivoRechazo(entrada, tecla); !motivo.isEmpty()) {
        preguntas_.Informar(motivo);
        MostrarTecla();
        ui_->kseTecla->setFocus();
        return;
    }
    atajos_.Poner(entrada, tecla);
    Cambiados();
}

void FrmAtajos::Cambiados() {
    Llenar();
    MostrarTecla();
    ui_->LVAtajos->setFocus();
    alCambiar_();
}

} // namespace tarvo
