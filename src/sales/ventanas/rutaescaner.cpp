#include "sales/ventanas/rutaescaner.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

namespace tarvo {

namespace {

bool EsEntrar(const QKeyEvent &evento) {
    return (evento.modifiers() & ~Qt::KeypadModifier) == 0 &&
           (evento.key() == Qt::Key_Return || evento.key() == Qt::Key_Enter);
}

// The character that this key types, empty when it types none.
QString CaracterDe(const QKeyEvent &evento) {
    const bool conOrden =
        (evento.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
    const QString texto = evento.text();
    return conOrden || texto.isEmpty() || !texto.front().isPrint() ? QString() : texto;
}

bool EsModificador(int tecla) {
    return tecla == Qt::Key_Shift || tecla == Qt::Key_Control || tecla == Qt::Key_Alt ||
           tecla == Qt::Key_AltGr || tecla == Qt::Key_Meta || tecla == Qt::Key_CapsLock;
}

} // namespace

RutaEscaner::RutaEscaner(Preguntas &preguntas) : preguntas_(preguntas) {}

void RutaEscaner::Montar(std::vector<QWidget *> marcos, std::function<void(const QString &)> buscar,
                         std::function<void(const QString &)> empezar) {
    marcos_ = std::move(marcos);
    buscar_ = std::move(buscar);
    empezar_ = std::move(empezar);
    qApp->installEventFilter(this);
}

Respuesta RutaEscaner::Preguntar(const QString &texto, Respuesta preseleccionada) {
    const QScopedValueRollback ocupado(preguntando_, true);
    const Respuesta respuesta = preguntas_.Preguntar(texto, preseleccionada);
    QMetaObject::invokeMethod(this, &RutaEscaner::BuscarPendiente, Qt::QueuedConnection);
    return respuesta;
}

void RutaEscaner::Mostrar(const QString &texto, Icono icono) {
    const QScopedValueRollback ocupado(preguntando_, true);
    const QScopedValueRollback aviso(informando_, true);
    preguntas_.Mostrar(texto, icono);
    QMetaObject::invokeMethod(this, &RutaEscaner::BuscarPendiente, Qt::QueuedConnection);
}

// The box of another question may be up again by now: what is pending waits for its end.
void RutaEscaner::BuscarPendiente() {
    if (preguntando_ || pendiente_.isEmpty())
        return;
    buscar_(std::exchange(pendiente_, QString()));
}

bool RutaEscaner::eventFilter(QObject *objeto, QEvent *evento) {
    if (evento->type() != QEvent::KeyPress || !objeto->isWidgetType())
        return false;
    auto *const recibe = static_cast<QWidget *>(objeto);
    const auto &tecla = *static_cast<QKeyEvent *>(evento);
    // A key that its control leaves alone comes by again on the way to the window.
    const QWidget *const foco = QApplication::focusWidget();
    if (foco != nullptr && recibe != foco && QApplication::activePopupWidget() == nullptr)
        return false;
    if (preguntando_ && recibe->window() != marcos_.front()->window())
        return EnCuadro(recibe->window(), tecla);
    return Tecla(recibe, tecla);
}

bool RutaEscaner::EnCuadro(QWidget *cuadro, const QKeyEvent &evento) {
    if (const QString caracter = CaracterDe(evento); !caracter.isEmpty()) {
        racha_.Agregar(cuadro, caracter, evento.timestamp());
        return false;
    }
    const QString codigo = racha_.En(cuadro);
    if (!EsModificador(evento.key()))
        racha_.Cortar();
    if (!EsEntrar(evento) || !RachaTeclas::EsCodigo(codigo))
        return false;
    pendiente_ = codigo;
    return !informando_;
}

// The control of the sale that a key is meant for: the list that a combo has opened is the combo.
RutaEscaner::CampoVenta *RutaEscaner::CampoDe(const QWidget *recibe) {
    const auto esSuyo = [recibe](const CampoVenta &campo) {
        const auto *combo = qobject_cast<const QComboBox *>(campo.control);
        return recibe == campo.control || (combo != nullptr && recibe == combo->view());
    };
    const auto campo = std::ranges::find_if(campos_, esSuyo);
    return campo == campos_.end() ? nullptr : &*campo;
}

// A control of the sale that takes no text; so is the window itself while nothing has the focus.
bool RutaEscaner::EsSinTexto(const QWidget *recibe) const {
    if (qobject_cast<const QLineEdit *>(recibe) != nullptr)
        return false;
    if (recibe == marcos_.front()->window())
        return marcos_.front()->isEnabled() && marcos_.front()->isVisible();
    return std::ranges::any_of(marcos_, [recibe](QWidget *marco) { return marco->isAncestorOf(recibe); });
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
        if (!EsSinTexto(recibe) || evento.key() == Qt::Key_Space)
            return false;
        empezar_(caracter);
        return true;
    }
    if (EsEntrar(evento) && campo != nullptr)
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
    buscar_(codigo);
    return true;
}

} // namespace tarvo
