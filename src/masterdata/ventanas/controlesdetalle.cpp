#include "masterdata/ventanas/controlesdetalle.h"

#include "desktop/ventanas/estilo.h"
#include "desktop/ventanas/filtrocampos.h"
#include "desktop/ventanas/listavista.h"
#include "desktop/ventanas/teclas.h"
#include "masterdata/listadetalle.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

namespace tarvo {

ControlesDetalle::ControlesDetalle(QWidget *marco, ListaVista *lista, QString prefijo, QWidget *bajoPaneles)
    : QObject(marco), marco_(marco), lista_(lista), prefijo_(std::move(prefijo)), bajoPaneles_(bajoPaneles) {}

void ControlesDetalle::Montar(ListaDetalle &logica) {
    logica_ = &logica;
    for (const CampoDetalle &campo : logica.Reglas().campos)
        campos_.push_back(marco_->findChild<QWidget *>(QString::fromUtf8(campo.control)));
    for (QWidget *campo : campos_)
        if (campo->isEnabled())
            habilitables_.push_back(campo);
    lista_->Mostrar(&logica.Lista());
    connect(lista_, &ListaVista::FilaPulsada, this, [this] { logica_->Mostrar(); });
    for (auto cambio : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(&logica.Lista(), cambio, this, &ControlesDetalle::FilasCambiadas);
    connect(&logica.Lista(), &QAbstractItemModel::modelReset, this, &ControlesDetalle::FilasCambiadas);
    ConectarBoton("Nuevo", &ListaDetalle::Nuevo);
    ConectarBoton("Guardar", &ListaDetalle::Guardar);
    ConectarBoton("Eliminar", &ListaDetalle::Eliminar);
    ConectarBoton("Actualizar", &ListaDetalle::Actualizar);
    ConectarBoton("Cancelar", &ListaDetalle::Cancelar);
    PonerTecla(Boton("Nuevo"), Qt::CTRL | Qt::Key_N);
    PonerTecla(Boton("Guardar"), Qt::CTRL | Qt::Key_G);
}

QPushButton *ControlesDetalle::Boton(const char *accion) const {
    return marco_->findChild<QPushButton *>(QStringLiteral("cmd%1%2").arg(prefijo_, QLatin1String(accion)));
}

void ControlesDetalle::ConectarBoton(const char *accion, void (ListaDetalle::*hacer)()) {
    QPushButton *boton = Boton(accion);
    connect(boton, &QPushButton::clicked, this, [this, boton, hacer] {
        boton->setFocus(); // whatever field is being typed in is left first
        std::invoke(hacer, *logica_);
    });
}

void ControlesDetalle::ConectarTeclas(FiltroCampos &filtro) {
    filtro.AlSuprimir(lista_, [this] {
        if (logica_->Lista().Filas() > 0)
            logica_->Eliminar();
    });
}

QString ControlesDetalle::Texto(int campo) const {
    QWidget *control = Campo(campo);
    if (auto *combo = qobject_cast<QComboBox *>(control))
        return combo->currentText();
    return static_cast<QLineEdit *>(control)->text();
}

void ControlesDetalle::Poner(int campo, const QString &texto) {
    QWidget *control = Campo(campo);
    auto *combo = qobject_cast<QComboBox *>(control);
    if (combo == nullptr) {
        auto *const linea = static_cast<QLineEdit *>(control);
        linea->setText(texto);
        if (!linea->hasFocus())
            linea->setCursorPosition(0); // what is too long shows its beginning
        return;
    }
    const int entrada = texto.isEmpty() ? -1 : static_cast<int>(entradas_.value(campo).indexOf(texto));
    combo->setPlaceholderText(entrada < 0 ? texto : QString());
    combo->setCurrentIndex(entrada);
}

void ControlesDetalle::PonerEntradas(int campo, const QStringList &entradas) {
    auto *combo = static_cast<QComboBox *>(Campo(campo));
    if (entradas_.value(campo) != entradas) {
        entradas_.insert(campo, entradas);
        combo->clear();
        combo->addItems(entradas);
    }
    combo->setPlaceholderText({});
    combo->setCurrentIndex(-1);
}

void ControlesDetalle::EnfocarCampo(int campo) {
    Campo(campo)->setFocus();
}

int ControlesDetalle::FilaActual() const {
    return lista_->FilaActual();
}

void ControlesDetalle::SeleccionarFila(int fila) {
    lista_->SeleccionarFila(fila);
}

void ControlesDetalle::EnfocarLista() {
    if (lista_->isEnabled() && lista_->isVisibleTo(lista_->window()))
        lista_->setFocus();
}

void ControlesDetalle::HabilitarCampos(bool conDatos) {
    for (QWidget *campo : habilitables_)
        campo->setEnabled(conDatos);
    for (QWidget *campo : campos_)
        Marcar(campo, "sinDatos", !conDatos);
}

void ControlesDetalle::Habilitar(const Habilitados &habilitados) {
    HabilitarCampos(habilitados.campos);
    const Botones &b = habilitados.botones;
    const std::pair<const char *, bool> botones[] = {{"Nuevo", b.nuevo},       {"Guardar", b.guardar},
                                                     {"Eliminar", b.eliminar}, {"Actualizar", b.actualizar},
                                                     {"Cancelar", b.cancelar}, {"Buscar", b.buscar},
                                                     {"Imprimir", b.imprimir}};
    for (const auto &[accion, encendido] : botones)
        if (QPushButton *boton = Boton(accion))
            boton->setEnabled(encendido);
    if (bajoPaneles_ != nullptr)
        bajoPaneles_->setEnabled(habilitados.controles);
    lista_->setEnabled(habilitados.lista);
    emit ListaHabilitada(habilitados.lista);
}

} // namespace tarvo
