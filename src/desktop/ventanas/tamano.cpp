#include "desktop/ventanas/tamano.h"

#include <QApplication>
#include <QEvent>
#include <QFont>
#include <QGridLayout>
#include <QMainWindow>
#include <QRegularExpression>
#include <QScreen>
#include <QToolBar>

#include <algorithm>
#include <utility>

namespace tarvo {

namespace {

// The sizes that the form gives are kept with the layout, so that steps back and forth don't add up.
constexpr auto kDelFormulario = "espacioDelFormulario";
constexpr auto kAire = "aire";

using Medidas = QList<QVariant>;

Medidas Leer(const QLayout &disposicion) {
    const QMargins m = disposicion.contentsMargins();
    const auto *rejilla = qobject_cast<const QGridLayout *>(&disposicion);
    return {m.left(),
            m.top(),
            m.right(),
            m.bottom(),
            rejilla == nullptr ? disposicion.spacing() : rejilla->horizontalSpacing(),
            rejilla == nullptr ? disposicion.spacing() : rejilla->verticalSpacing()};
}

bool Apila(const QLayout &disposicion) {
    const auto *caja = qobject_cast<const QBoxLayout *>(&disposicion);
    return caja != nullptr && caja->direction() == QBoxLayout::TopToBottom;
}

void Escribir(QLayout *disposicion, const Medidas &medidas) {
    const double factor = Crecido();
    const QVariant aire = disposicion->property(kAire);
    const auto medida = [&](qsizetype i) { return qRound(medidas[i].toInt() * factor); };
    const auto vertical = [&](qsizetype i) {
        const int delFormulario = medidas[i].toInt();
        return std::max(qRound(delFormulario * factor * (aire.isValid() ? aire.toDouble() : 1)),
                        std::min(delFormulario, 1));
    };
    disposicion->setContentsMargins(medida(0), vertical(1), medida(2), vertical(3));
    if (auto *rejilla = qobject_cast<QGridLayout *>(disposicion)) {
        rejilla->setHorizontalSpacing(medida(4));
        rejilla->setVerticalSpacing(vertical(5));
    } else {
        disposicion->setSpacing(Apila(*disposicion) ? vertical(4) : medida(4));
    }
}

void Espaciar(QLayout *disposicion) {
    Medidas medidas = disposicion->property(kDelFormulario).toList();
    if (medidas.isEmpty()) {
        medidas = Leer(*disposicion);
        disposicion->setProperty(kDelFormulario, medidas);
    }
    Escribir(disposicion, medidas);
}

// A toolbar has its measures from the sheet, which grows by itself.
void EspaciarVentana(QWidget *control) {
    if (control->layout() == nullptr || qobject_cast<QToolBar *>(control) != nullptr)
        return;
    Espaciar(control->layout());
    for (QLayout *interior : control->layout()->findChildren<QLayout *>())
        Espaciar(interior);
}

QFont LetraDelPrograma(double puntos) {
    QFont letra;
    // All of these have figures of one width, so that amounts stand in columns.
    letra.setFamilies({QStringLiteral("Noto Sans"), QStringLiteral("DejaVu Sans"),
                       QStringLiteral("Liberation Sans"), QStringLiteral("sans-serif")});
    letra.setPointSizeF(puntos);
    letra.setStyleHint(QFont::SansSerif);
    return letra;
}

} // namespace

QSize LoQueCabe(const QWidget &ventana, const QSize &medida) {
    const QSize marco(16, 40);
    return medida.boundedTo(ventana.screen()->availableSize() - marco);
}

double Crecido() {
    return QApplication::font().pointSizeF() / Tamano::kLetra;
}

void PonerAire(std::initializer_list<QLayout *> disposiciones, double aire) {
    for (QLayout *disposicion : disposiciones) {
        disposicion->setProperty(kAire, aire);
        Espaciar(disposicion);
    }
}

void PonerMedidas(QLayout *disposicion, const QMargins &margenes, int separacion) {
    disposicion->setProperty(kDelFormulario, Medidas{margenes.left(), margenes.top(), margenes.right(),
                                                     margenes.bottom(), separacion, separacion});
    Espaciar(disposicion);
}

Tamano::Tamano(QApplication &aplicacion, QString hoja)
    : QObject(&aplicacion), aplicacion_(aplicacion), hoja_(std::move(hoja)) {
    QApplication::setFont(LetraDelPrograma(kLetra));
    aplicacion_.setStyleSheet(hoja_);
    aplicacion_.installEventFilter(this);
}

bool Tamano::eventFilter(QObject *objeto, QEvent *evento) {
    if (evento->type() == QEvent::Resize) {
        const auto *principal = qobject_cast<QMainWindow *>(objeto);
        if (principal != nullptr && principal->isWindow() && principal->isVisible())
            Poner(principal->width() >= kAnchoGrande);
    } else if (evento->type() == QEvent::Polish && grande_ && objeto->isWidgetType()) {
        EspaciarVentana(static_cast<QWidget *>(objeto));
    }
    return false;
}

void Tamano::Poner(bool grande) {
    if (grande_ == grande)
        return;
    grande_ = grande;
    QApplication::setFont(LetraDelPrograma(grande ? kLetra * kPaso : kLetra));
    aplicacion_.setStyleSheet(Hoja());
    for (QWidget *control : QApplication::allWidgets())
        EspaciarVentana(control);
    emit Cambiado();
}

// Every size of the sheet but lines, which stay thin.
QString Tamano::Hoja() const {
    static const QRegularExpression medida(QStringLiteral("\\b(\\d+)(pt|px)\\b"));
    QString hoja;
    qsizetype hasta = 0;
    for (const QRegularExpressionMatch &una : medida.globalMatch(hoja_)) {
        const int valor = una.captured(1).toInt();
        hoja += hoja_.mid(hasta, una.capturedStart() - hasta);
        hoja += (valor > 2 ? QString::number(qRound(valor * Crecido())) : una.captured(1)) + una.captured(2);
        hasta = una.capturedEnd();
    }
    return hoja + hoja_.mid(hasta);
}

} // namespace tarvo
