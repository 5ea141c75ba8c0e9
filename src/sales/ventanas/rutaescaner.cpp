#include "sales/ventanas/rutaescaner.h"

#include "desktop/escaner.h"
#include "desktop/ventanas/preguntasqt.h"
#include "desktop/ventanas/ritmoteclas.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QEventLoop>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QScopedValueRollback>
#include <QWindow>

#include <algorithm>
#include <memory>
#include <utility>

namespace tarvo {

namespace {

constexpr int kVuelta = 200; // ms; the window system has given the keyboard back

bool EsMenu(const QWidget *recibe) {
    return qobject_cast<const QMenu *>(recibe) != nullptr ||
           qobject_cast<const QMenuBar *>(recibe) != nullptr;
}

// The letter that an entry of this menu underlines, or one of the bar from which it hangs.
bool EligeEntrada(const QWidget &menu, const QString &caracter) {
    const QKeySequence letra(Qt::ALT | static_cast<Qt::Key>(caracter.front().toUpper().unicode()));
    QList<QAction *> entradas = menu.actions();
    if (const auto *barra = qobject_cast<const QMenuBar *>(menu.parentWidget()))
        entradas += barra->actions();
    return EsMenu(&menu) && std::ranges::any_of(entradas, [&](const QAction *entrada) {
               return QKeySequence::mnemonic(entrada->text()) == letra;
           });
}

// A menu or list that has just closed still gets what was struck before it did.
bool EsEmergenteCerrado(const QWidget &recibe) {
    return recibe.window()->windowType() == Qt::Popup && !recibe.window()->isVisible();
}

// Hidden first: the keys that are on their way to its window would be lost with it.
void CerrarMenus() {
    while (QWidget *menu = QApplication::activePopupWidget()) {
        menu->hide();
        QTimer::singleShot(kVuelta, menu, [menu] {
            if (!menu->isVisible())
                menu->close();
        });
    }
}

bool EsModificador(int tecla) {
    return tecla == Qt::Key_Shift || tecla == Qt::Key_Control || tecla == Qt::Key_Alt ||
           tecla == Qt::Key_AltGr || tecla == Qt::Key_Meta || tecla == Qt::Key_CapsLock;
}

} // namespace

RutaEscaner::RutaEscaner(Preguntas &preguntas) : preguntas_(preguntas) {
    calma_.setSingleShot(true);
    connect(&calma_, &QTimer::timeout, this, &RutaEscaner::BuscarPendiente);
}

void RutaEscaner::Montar(QWidget *venta, Buscar buscar) {
    venta_ = venta;
    buscar_ = std::move(buscar);
    qApp->installEventFilter(this);
}

Respuesta RutaEscaner::Preguntar(const QString &texto, Respuesta preseleccionada) {
    Respuesta respuesta = preseleccionada;
    ConCuadro([&] { respuesta = preguntas_.Preguntar(texto, preseleccionada); });
    return respuesta;
}

void RutaEscaner::Mostrar(const QString &texto, Icono icono) {
    ConCuadro([&] { preguntas_.Mostrar(texto, icono); });
}

void RutaEscaner::ConCuadro(const std::function<void()> &cuadro) {
    {
        const QScopedValueRollback ocupado(preguntando_, true);
        EsperarCalma();
        cuadro();
    }
    RetenerTeclado();
    Reanudar();
}

// A box that opens or closes among the keys of a scan would let some of them fall between the windows.
void RutaEscaner::EsperarCalma() {
    const QScopedValueRollback espera(esperando_, true);
    while (CalmaEn() > 0) {
        QEventLoop vueltas;
        QTimer::singleShot(CalmaEn(), &vueltas, &QEventLoop::quit);
        vueltas.exec();
    }
}

int RutaEscaner::CalmaEn() const {
    return desdeTecla_.isValid()
               ? static_cast<int>(std::max<qint64>(0, kRitmoEscaner - desdeTecla_.elapsed()))
               : 0;
}

// Until the window system has given the keyboard back to the window, the keys would go to nobody.
void RutaEscaner::RetenerTeclado() {
    QWindow *const ventana = venta_ == nullptr ? nullptr : venta_->window()->windowHandle();
    if (ventana == nullptr || ventana->isActive() ||
        QGuiApplication::platformName() != QLatin1String("xcb") || !ventana->setKeyboardGrabEnabled(true))
        return;
    QTimer::singleShot(kVuelta, ventana, [ventana] { ventana->setKeyboardGrabEnabled(false); });
}

void RutaEscaner::Reanudar() {
    calma_.start(CalmaEn());
}

// The box of another question may be up again by now, or a panel: what is pending waits for its end.
void RutaEscaner::BuscarPendiente() {
    if (!preguntando_ && ConCuadroAbierto() && !cola_.isEmpty()) // nobody tells of its end
        calma_.start(kVuelta);
    if (!Libre())
        return;
    if (CalmaEn() > 0)
        return Reanudar();
    racha_.Cortar();
    if (cola_.isEmpty())
        return;
    const Lectura lectura = cola_.takeFirst();
    buscar_(lectura.codigo, lectura.agregar);
    Reanudar();
}

// One of the sale, or one of the main window over it, such as the question whether to leave the sale.
bool RutaEscaner::ConCuadroAbierto() const {
    return preguntando_ || EsPregunta(QApplication::activeModalWidget());
}

bool RutaEscaner::Libre() const {
    return !ConCuadroAbierto() && venta_->isEnabled();
}

bool RutaEscaner::eventFilter(QObject *objeto, QEvent *evento) {
    if (objeto == venta_ && evento->type() == QEvent::EnabledChange)
        Reanudar();
    if (!objeto->isWidgetType())
        return false;
    auto *const recibe = static_cast<QWidget *>(objeto);
    if (ConCuadroAbierto() && recibe->window() == venta_->window() && DetrasDelCuadro(*evento))
        return true;
    if (evento->type() != QEvent::KeyPress)
        return false;
    const auto &tecla = *static_cast<QKeyEvent *>(evento);
    QWidget *const foco = QApplication::focusWidget();
    if (foco != nullptr && foco->window() == venta_->window() && EsEmergenteCerrado(*recibe)) {
        const std::unique_ptr<QKeyEvent> misma(tecla.clone());
        QCoreApplication::sendEvent(foco, misma.get());
        return true;
    }
    // A key that its control leaves alone comes by again on the way to the window.
    if (foco != nullptr && recibe != foco && QApplication::activePopupWidget() == nullptr)
        return false;
    desdeTecla_.start();
    if (ConCuadroAbierto() || (Libre() && (!cola_.isEmpty() || !racha_.En(this).isEmpty())))
        return Recoger(tecla);
    return Tecla(recibe, tecla);
}

// While a box is about to open nothing else may begin in the sale. Once it is up, a key that still goes to
// the window behind it is heard only as the question whether it is a shortcut.
bool RutaEscaner::DetrasDelCuadro(QEvent &evento) {
    switch (evento.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::Close:
        if (esperando_)
            evento.ignore();
        return esperando_;
    case QEvent::ShortcutOverride:
        evento.accept();
        if (!esperando_) {
            desdeTecla_.start();
            Recoger(static_cast<QKeyEvent &>(evento));
        }
        return true;
    default:
        return false;
    }
}

// True for a key that is kept from its window: the characters, and each Enter in the rhythm of a scan.
bool RutaEscaner::Recoger(const QKeyEvent &evento) {
    const bool seguida = evento.timestamp() <= ultima_ + kRitmoEscaner;
    if (const QString caracter = CaracterDe(evento); !caracter.isEmpty()) {
        // The blank presses the button.
        if (racha_.En(this).isEmpty() && evento.key() == Qt::Key_Space)
            return esperando_;
        racha_.Agregar(this, caracter, evento.timestamp());
        ultima_ = evento.timestamp();
        leida_ = false;
        return true;
    }
    if (EsModificador(evento.key()))
        return false;
    const QString codigo = racha_.En(this);
    racha_.Cortar();
    if (!SinModificador(evento) || !EsEntrar(evento.key())) {
        leida_ = false;
        return esperando_;
    }
    const bool deLectura = RachaTeclas::EsCodigo(codigo) || (seguida && (leida_ || !codigo.isEmpty()));
    if (codigo.size() >= kCodigoMenor && deLectura) {
        cola_.append({codigo, false});
        Reanudar();
    } else if (deLectura && leida_ && !cola_.isEmpty())
        cola_.last().agregar = true;
    leida_ = deLectura;
    ultima_ = evento.timestamp();
    return deLectura || esperando_;
}

// The control of the sale that a key is meant for: the list that a combo has opened is the combo.
RutaEscaner::CampoVenta *RutaEscaner::CampoDe(const QWidget *recibe) {
    const auto esSuyo = [recibe](const CampoVenta &campo) {
        const auto *combo = qobject_cast<const QComboBox *>(campo.control);
        return recibe == campo.control || (combo != nullptr && recibe->window() == combo->view()->window());
    };
    const auto campo = std::ranges::find_if(campos_, esSuyo);
    return campo == campos_.end() ? nullptr : &*campo;
}

// Where a character goes that is typed on `recibe`, a control without text; so are a menu and, while nothing
// has the focus, the window itself. Empty when it is left alone.
RutaEscaner::Empezar RutaEscaner::DesvioDe(const QWidget *recibe) const {
    if (qobject_cast<const QLineEdit *>(recibe) != nullptr)
        return {};
    const bool deTodos = recibe == venta_->window() || EsMenu(recibe);
    const auto desvio = std::ranges::find_if(desvios_, [&](const Desvio &d) {
        return deTodos ? d.marco->isEnabled() && d.marco->isVisible() : d.marco->isAncestorOf(recibe);
    });
    return desvio == desvios_.end() ? Empezar() : desvio->empezar;
}

bool RutaEscaner::Tecla(QWidget *recibe, const QKeyEvent &evento) {
    CampoVenta *const campo = CampoDe(recibe);
    if (const QString caracter = CaracterDe(evento); !caracter.isEmpty()) {
        if (campo != nullptr) {
            const QString texto = campo->leer();
            if (racha_.Agregar(campo->control, caracter, evento.timestamp()))
                antes_ = texto;
            return false;
        }
        // The blank presses the button and marks the row.
        const bool suya = evento.key() == Qt::Key_Space || EligeEntrada(*recibe, caracter);
        const Empezar empezar = suya ? Empezar() : DesvioDe(recibe);
        if (!empezar)
            return false;
        CerrarMenus();
        empezar(caracter);
        return true;
    }
    if (campo != nullptr && SinModificador(evento) && EsEntrar(evento.key()))
        return Entrar(*campo);
    if (!EsModificador(evento.key()))
        racha_.Cortar();
    return false;
}

bool RutaEscaner::Entrar(CampoVenta &campo) {
    const QString racha = racha_.En(campo.control);
    racha_.Cortar();
    const QString codigo = campo.codigo(racha, campo.leer());
    if (codigo.isEmpty())
        return false;
    campo.poner(antes_);
    buscar_(codigo, false);
    return true;
}

} // namespace tarvo
