#include "shell/ventanas/panelinicio.h"

#include "desktop/ventanas/ritmoteclas.h"
#include "shell/ventanas/acciones.h"

#include <QAction>
#include <QButtonGroup>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>

namespace tarvo {

namespace {

constexpr int kImagen = 48; // pixels
constexpr int kAncho = 10;  // heights of a line: wider than any caption
constexpr int kPorFila = 3;

QLabel *Rotulo(QBoxLayout &pila) {
    auto *rotulo = new QLabel;
    rotulo->setAlignment(Qt::AlignCenter);
    rotulo->setAttribute(Qt::WA_TransparentForMouseEvents);
    pila.addWidget(rotulo);
    return rotulo;
}

} // namespace

BotonModulo::BotonModulo(QAction &accion, const QAction &menu, QWidget *padre)
    : QPushButton(padre), accion_(accion), menu_(menu) {
    auto *pila = new QVBoxLayout(this);
    pila->setContentsMargins(24, 14, 24, 12);
    imagen_ = Rotulo(*pila);
    texto_ = Rotulo(*pila);
    tecla_ = Rotulo(*pila);
    tecla_->setProperty("tenue", true);
    connect(this, &QPushButton::clicked, &accion, &QAction::trigger);
    connect(&accion, &QAction::changed, this, &BotonModulo::Actualizar);
    connect(&menu, &QAction::changed, this, &BotonModulo::Actualizar);
    Actualizar();
}

QSize BotonModulo::sizeHint() const {
    return layout()->sizeHint().expandedTo({fontMetrics().height() * kAncho, 0});
}

void BotonModulo::Actualizar() {
    const QString tecla = menu_.shortcut().toString(QKeySequence::NativeText);
    imagen_->setPixmap(accion_.icon().pixmap({kImagen, kImagen}, devicePixelRatioF(),
                                             accion_.isEnabled() ? QIcon::Normal : QIcon::Disabled));
    texto_->setText(accion_.text());
    tecla_->setText(tecla);
    setAccessibleName(accion_.toolTip());
    setEnabled(accion_.isEnabled());
}

void BotonModulo::keyPressEvent(QKeyEvent *evento) {
    if (EsEntrar(evento->key()))
        click();
    else
        QPushButton::keyPressEvent(evento);
}

PanelInicio::PanelInicio(const Acciones &acciones) {
    setObjectName(QStringLiteral("inicio"));
    auto *rejilla = new QGridLayout(this);
    rejilla->setSpacing(16);
    auto *grupo = new QButtonGroup(this); // the arrows move among its buttons
    grupo->setExclusive(false);
    int cual = 0;
    for (const std::optional<Entrada> &entrada : OrdenBarra()) {
        if (!entrada)
            break; // behind the first separator come the tools
        auto *boton = new BotonModulo(*acciones.DeBarra(*entrada), *acciones.DeMenu(*entrada), this);
        grupo->addButton(boton);
        rejilla->addWidget(boton, 1 + cual / kPorFila, 1 + cual % kPorFila);
        ++cual;
    }
    rejilla->setRowStretch(0, 2);
    rejilla->setRowStretch(1 + (cual + kPorFila - 1) / kPorFila, 3);
    rejilla->setColumnStretch(0, 1);
    rejilla->setColumnStretch(1 + kPorFila, 1);
    setFocusProxy(grupo->buttons().constFirst());
}

} // namespace tarvo
