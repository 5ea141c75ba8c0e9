#include "sales/ventanas/camposescaner.h"

#include <QComboBox>
#include <QLineEdit>

#include <utility>

namespace tarvo {

RutaEscaner::CampoVenta CampoNumerico(QLineEdit *campo, std::function<void()> volver) {
    return {campo, [campo] { return campo->text(); },
            [volver = std::move(volver)](const QString &) { volver(); },
            [](const QString &racha, const QString &texto) {
                if (RachaTeclas::EsCodigo(racha))
                    return racha;
                return RachaTeclas::EsCodigo(texto) ? texto : QString();
            }};
}

RutaEscaner::CampoVenta CampoLibre(QLineEdit *campo, EsBarras esBarras) {
    return {campo, [campo] { return campo->text(); },
            [campo](const QString &antes) { campo->setText(antes); },
            [esBarras = std::move(esBarras)](const QString &racha, const QString &) {
                return RachaTeclas::EsCodigo(racha) && esBarras(racha) ? racha : QString();
            }};
}

RutaEscaner::CampoVenta CampoCombo(QComboBox *combo, EsBarras esBarras) {
    return {combo, [combo] { return QString::number(combo->currentIndex()); },
            [combo](const QString &antes) {
                combo->hidePopup();
                combo->setCurrentIndex(antes.toInt());
            },
            [combo, esBarras = std::move(esBarras)](const QString &racha, const QString &) {
                const bool nadie = combo->findText(racha, Qt::MatchStartsWith) < 0;
                return RachaTeclas::EsCodigo(racha) && (nadie || esBarras(racha)) ? racha : QString();
            }};
}

} // namespace tarvo
