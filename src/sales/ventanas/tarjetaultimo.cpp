#include "sales/ventanas/tarjetaultimo.h"

#include "desktop/ventanas/botonzel.h"
#include "desktop/ventanas/estilo.h"
#include "desktop/ventanas/etiquetaelidida.h"
#include "desktop/ventanas/iconos.h"
#include "desktop/ventanas/tamano.h"
#include "desktop/ventanas/teclas.h"
#include "sales/ultimocomprobante.h"

#include <QGridLayout>
#include <QKeySequence>

namespace tarvo {

namespace {

constexpr QKeyCombination kTeclaTicket = Qt::CTRL | Qt::Key_R;
constexpr QKeyCombination kTeclaFactura = Qt::CTRL | Qt::Key_I;

} // namespace

TarjetaUltimo::TarjetaUltimo(UltimoComprobante &ultimo, Preguntas &preguntas, QWidget *padre)
    : QFrame(padre),
      ultimo_(ultimo),
      lblUltimo(new EtiquetaElidida(this)),
      lblUltimoTotal(new EtiquetaElidida(this)),
      cmdReimprimir(CrearBoton(QStringLiteral("cmdReimprimir"), QStringLiteral("Reimprimir ticket"),
                               QStringLiteral("imprimir"), kTeclaTicket)),
      cmdFactura(CrearBoton(QStringLiteral("cmdFactura"), QStringLiteral("Imprimir factura"),
                            QStringLiteral("factura"), kTeclaFactura)) {
    setObjectName(QStringLiteral("frUltimo"));
    setProperty("tarjeta", true);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setAccessibleName(QStringLiteral("Último comprobante"));
    lblUltimo->setObjectName(QStringLiteral("lblUltimo"));
    lblUltimo->setProperty("tenue", true);
    lblUltimoTotal->setObjectName(QStringLiteral("lblUltimoTotal"));
    for (EtiquetaElidida *etiqueta : {lblUltimo, lblUltimoTotal})
        etiqueta->setTextFormat(Qt::PlainText);
    auto *rejilla = new QGridLayout(this);
    rejilla->setColumnStretch(0, 1);
    rejilla->setColumnStretch(1, 1);
    Plegar(false);
    connect(cmdReimprimir, &QPushButton::clicked, &ultimo_,
            [this, &preguntas] { ultimo_.ReimprimirTicket(preguntas); });
    connect(cmdFactura, &QPushButton::clicked, &ultimo_,
            [this, &preguntas] { ultimo_.ImprimirFactura(preguntas); });
    connect(&ultimo_, &UltimoComprobante::Cambiado, this, &TarjetaUltimo::Mostrar);
    Mostrar();
}

QPushButton *TarjetaUltimo::CrearBoton(const QString &nombre, const QString &texto, const QString &imagen,
                                       const QKeySequence &tecla) {
    auto *boton = new BotonZel(texto, this);
    boton->setIcon(IconoDe(imagen));
    boton->setObjectName(nombre);
    PonerTecla(boton, tecla);
    boton->setAccessibleName(texto);
    boton->setAutoDefault(false);
    boton->setFocusPolicy(Qt::NoFocus);
    return boton;
}

// Folded, the buttons are pictures behind the one line.
void TarjetaUltimo::Plegar(bool plegada) {
    plegada_ = plegada;
    auto *rejilla = static_cast<QGridLayout *>(layout());
    for (QWidget *control :
         std::initializer_list<QWidget *>{lblUltimo, lblUltimoTotal, cmdReimprimir, cmdFactura})
        rejilla->removeWidget(control);
    PonerMedidas(rejilla, plegada ? QMargins(4, 0, 0, 0) : QMargins(9, 6, 9, 6), plegada ? 2 : 4);
    lblUltimo->setVisible(!plegada);
    for (QPushButton *boton : {cmdReimprimir, cmdFactura}) {
        boton->setText(plegada ? QString() : boton->accessibleName());
        Marcar(boton, "compacto", plegada);
    }
    if (plegada) {
        rejilla->addWidget(lblUltimoTotal, 0, 0, 1, 2);
        rejilla->addWidget(cmdReimprimir, 0, 2);
        rejilla->addWidget(cmdFactura, 0, 3);
    } else {
        rejilla->addWidget(lblUltimo, 0, 0, 1, 2);
        rejilla->addWidget(lblUltimoTotal, 1, 0, 1, 2);
        rejilla->addWidget(cmdReimprimir, 2, 0);
        rejilla->addWidget(cmdFactura, 2, 1);
    }
    Mostrar();
}

void TarjetaUltimo::Mostrar() {
    const auto &documento = ultimo_.Documento();
    setVisible(documento.has_value());
    if (!documento)
        return;
    const QString punto = QStringLiteral(" · ");
    QStringList nombre{documento->tipo};
    if (!documento->numero.isEmpty())
        nombre.prepend(documento->numero);
    QStringList total{documento->totalConDescuento, documento->hora};
    lblUltimo->setText(nombre.join(punto));
    if (plegada_)
        total << documento->tipo.section(QLatin1Char(' '), -1) << documento->numero;
    total.removeAll(QString());
    lblUltimoTotal->setText(total.join(punto));
    cmdFactura->setEnabled(ultimo_.HayDiseno());
}

// The layout may have been stored since.
void TarjetaUltimo::showEvent(QShowEvent *evento) {
    QFrame::showEvent(evento);
    cmdFactura->setEnabled(ultimo_.HayDiseno());
}

} // namespace tarvo
