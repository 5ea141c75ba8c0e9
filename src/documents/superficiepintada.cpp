#include "documents/superficiepintada.h"

#include "desktop/unalinea.h"
#include "store/errordatos.h"

#include <QFontInfo>
#include <QFontMetricsF>

#include <algorithm>
#include <utility>

namespace tarvo {

namespace {

constexpr double kTwipsPorPulgada = 1440;
constexpr double kMilimetrosPorPulgada = 25.4;
constexpr double kHolgura = 0.01; // of a dot: sums of widths aren't exact

[[noreturn]] void Fallar() {
    throw ErrorDatos(errores::kImpresora, QStringLiteral("La impresora no acepta el documento."));
}

} // namespace

SuperficiePintada::SuperficiePintada(std::unique_ptr<QPagedPaintDevice> dispositivo, const Rejilla &rejilla,
                                     std::function<void()> alTerminar)
    : alTerminar_(std::move(alTerminar)), dispositivo_(std::move(dispositivo)) {
    if (!pintor_.begin(dispositivo_.get()))
        Fallar();
    letra_.puntos = rejilla.puntos;
    const double necesario = CrearTipo().avance * rejilla.columnas;
    ajuste_ = necesario > 0 ? std::min(1.0, dispositivo_->width() / necesario) : 1;
    letra_ = {};
}

SuperficiePintada::SuperficiePintada(std::unique_ptr<QPagedPaintDevice> dispositivo,
                                     const Formulario &formulario, std::function<void()> alTerminar)
    : SuperficiePintada(std::move(dispositivo), Rejilla(), std::move(alTerminar)) {
    formulario_ = formulario;
}

SuperficiePintada::Tipo SuperficiePintada::CrearTipo() const {
    QFont fuente;
    fuente.setFamilies(
        {letra_.familia, QStringLiteral("Liberation Mono"), QStringLiteral("DejaVu Sans Mono")});
    fuente.setStyleHint(QFont::Monospace);
    fuente.setHintingPreference(QFont::PreferNoHinting);
    fuente.setPointSizeF(letra_.puntos * ajuste_);
    fuente.setBold(letra_.negrita);
    fuente.setItalic(letra_.cursiva);
    fuente.setStrikeOut(letra_.tachada);
    fuente.setUnderline(letra_.subrayada);
    const QFontMetricsF medidas(fuente, dispositivo_.get());
    return {letra_,
            fuente,
            QFontInfo(fuente).fixedPitch(),
            medidas.horizontalAdvance(QLatin1Char('0')),
            medidas.ascent(),
            medidas.lineSpacing()};
}

const SuperficiePintada::Tipo &SuperficiePintada::TipoActual() {
    if (tipo_ && tipo_->letra == letra_)
        return *tipo_;
    const auto conocido = std::find_if(tipos_.begin(), tipos_.end(),
                                       [this](const auto &tipo) { return tipo->letra == letra_; });
    if (conocido != tipos_.end())
        tipo_ = conocido->get();
    else
        tipo_ = tipos_.emplace_back(std::make_unique<Tipo>(CrearTipo())).get();
    pintor_.setFont(tipo_->fuente);
    return *tipo_;
}

void SuperficiePintada::Pintar(const Tipo &tipo, const QString &texto) {
    const double base = y_ + tipo.ascenso;
    if (tipo.fija) {
        pintor_.drawText(QPointF(x_, base), texto);
        return;
    }
    for (qsizetype i = 0; i < texto.size(); ++i)
        pintor_.drawText(QPointF(x_ + static_cast<double>(i) * tipo.avance, base), texto.mid(i, 1));
}

void SuperficiePintada::Texto(const QString &texto) {
    const Tipo &tipo = TipoActual();
    if (!formulario_ && y_ > 0 && y_ + tipo.alto > dispositivo_->height()) {
        const double x = x_;
        NuevaPagina();
        x_ = x;
    }
    if (!texto.isEmpty())
        Pintar(tipo, EnUnaLinea(texto));
    x_ += static_cast<double>(texto.size()) * tipo.avance;
    altoLinea_ = std::max(altoLinea_, tipo.alto);
}

void SuperficiePintada::Columna(int caracteres) {
    const double x = std::max(caracteres, 0) * TipoActual().avance;
    if (x < x_ - kHolgura)
        FinLinea();
    x_ = x;
}

void SuperficiePintada::FinLinea() {
    y_ += std::max(altoLinea_, TipoActual().alto);
    x_ = 0;
    altoLinea_ = 0;
}

double SuperficiePintada::PuntosDispositivo(int twips) const {
    return twips * ajuste_ * dispositivo_->logicalDpiX() / kTwipsPorPulgada;
}

double SuperficiePintada::ATwips(double puntos) const {
    return puntos * kTwipsPorPulgada / dispositivo_->logicalDpiX();
}

double SuperficiePintada::AnchoCaracter() {
    return ATwips(TipoActual().avance);
}

double SuperficiePintada::AltoLinea() {
    return ATwips(TipoActual().alto);
}

QPoint SuperficiePintada::EnPapel(int xTwips, int yTwips) const {
    if (!formulario_)
        return {xTwips, yTwips};
    return {std::max(xTwips, formulario_->izquierda), std::max(yTwips, formulario_->arriba)};
}

void SuperficiePintada::Posicion(int xTwips, int yTwips) {
    const QPoint lugar = EnPapel(xTwips, yTwips);
    x_ = PuntosDispositivo(lugar.x());
    y_ = PuntosDispositivo(lugar.y());
    altoLinea_ = 0;
}

void SuperficiePintada::Imagen(const QImage &imagen, int xTwips, int yTwips, int anchoTwips, int altoTwips) {
    const QPoint lugar = EnPapel(xTwips, yTwips);
    pintor_.setRenderHint(QPainter::LosslessImageRendering); // a logo has few colours and sharp edges
    pintor_.drawImage(QRectF(PuntosDispositivo(lugar.x()), PuntosDispositivo(lugar.y()),
                             PuntosDispositivo(anchoTwips), PuntosDispositivo(altoTwips)),
                      imagen);
}

void SuperficiePintada::NuevaPagina() {
    if (!dispositivo_->newPage())
        Fallar();
    x_ = 0;
    y_ = 0;
    altoLinea_ = 0;
    ++paginas_;
}

void SuperficiePintada::Terminar() {
    if (!pintor_.end())
        Fallar();
    if (alTerminar_)
        alTerminar_();
}

double SuperficiePintada::AltoUsado() const {
    return (y_ + altoLinea_) * kMilimetrosPorPulgada / dispositivo_->logicalDpiY();
}

} // namespace tarvo
