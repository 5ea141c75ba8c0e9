#include "sales/ventanas/camposescaner.h"

#include <QComboBox>
#include <QLineEdit>

#include <utility>

namespace tarvo {

RutaEscaner::CampoVenta CampoNumerico(QLineEdit *campo, std::function<void()> volver) {
    return {campo, [campo] { return campo->text(); },
            [volver = std::move(volver)](const QString &) { volver(); },
            [](const QString &lectura, const QString &texto) {
                return lectura.isEmpty() && RachaTeclas::EsCodigo(texto) ? texto : lectura;
            }};
}

RutaEscaner::CampoVenta CampoLibre(QLineEdit *campo, EsBarras esBarras) {
    return {campo, [campo] { return campo->text(); },
            [campo](const QString &antes) { campo->setText(antes); },
            [esBarras = std::move(esBarras)](const QString &lectura, const QString &) {
                return esBarras(lectura) ? lectura : QString();
            }};
}

RutaEscaner::CampoVenta CampoCombo(QComboBox *combo, EsBarras esBarras) {
    return {combo, [combo] { return QString::number(combo->currentIndex()); },
            [combo](const QString &antes) {
                combo->hidePopup();
                combo->setCurrentIndex(antes.toInt());
            },
            [combo, esBarras = std::move(esBarras)](const QString &lectura, const QString &) {
                const bool nadie = combo->findText(lectura, Qt::MatchStartsWith) < 0;
                return nadie || esBarras(lectura) ? lectura : QString();
            }};
}

} // namespace tarvo
