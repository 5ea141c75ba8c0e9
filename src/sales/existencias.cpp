#include "sales/existencias.h"

#include "store/moneda.h"

namespace tarvo {

namespace {

constexpr qsizetype kEnterosMayor = 12; // with these, no step below leaves 64 bits
constexpr qsizetype kDecimalesMayor = 5;

QString TextoDecimal(qint64 valor, qsizetype decimales, const QString &separador) {
    QString cifras = QString::number(qAbs(valor)).rightJustified(decimales + 1, QLatin1Char('0'));
    QString fraccion = cifras.right(decimales);
    cifras.chop(decimales);
    while (fraccion.endsWith(QLatin1Char('0')))
        fraccion.chop(1);
    if (!fraccion.isEmpty())
        cifras += separador + fraccion;
    return valor < 0 ? QLatin1Char('-') + cifras : cifras;
}

} // namespace

std::optional<QString> RestarExistencias(const QString &stock, qint64 cantidad, const Moneda &moneda) {
    if (!Moneda::EsNumero(stock))
        return std::nullopt;
    QString cifras = stock.trimmed();
    cifras.replace(QLatin1Char(','), QLatin1Char('.'));
    const qsizetype punto = cifras.indexOf(QLatin1Char('.'));
    const qsizetype decimales = punto < 0 ? 0 : cifras.size() - punto - 1;
    cifras.remove(QLatin1Char('.'));
    if (decimales > kDecimalesMayor || cifras.size() - decimales > kEnterosMayor)
        return std::nullopt;
    qint64 unidad = 1;
    for (qsizetype i = 0; i < decimales; ++i)
        unidad *= 10;
    return TextoDecimal(cifras.toLongLong() - cantidad * unidad, decimales, moneda.sDecimal());
}

} // namespace tarvo
