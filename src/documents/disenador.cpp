#include "documents/disenador.h"

#include "desktop/unalinea.h"
#include "documents/archivos.h"
#include "documents/impresoras.h"
#include "documents/superficie.h"
#include "store/errordatos.h"
#include "store/store.h"

#include <QUndoCommand>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tarvo {

namespace {

constexpr int kMinimoEtiqueta = 10; // pixels
constexpr double kAsidero = 120;    // twips of a piece that the mouse can take well
constexpr int kMaximoEtiqueta = 600;
constexpr int kPasos = 1000; // that can be undone

std::size_t Lugar(int numero) {
    return static_cast<std::size_t>(numero);
}

std::size_t LugarEtiqueta(int numero) {
    return Lugar(numero - pieza::kEtiquetas);
}

int APixeles(double twips) {
    return static_cast<int>(std::lround(twips / kTwipsPorPixel));
}

// The nearest value at which a piece of that length lies on the canvas; one that is too long starts before
// it.
float Dentro(float valor, double largo, int lienzo) {
    return static_cast<float>(std::min(std::max<double>(valor, 0), lienzo - largo));
}

} // namespace

// A step is the layout before and after it: there is so little of it that no kind of step needs its own undo.
class Disenador::Paso final : public QUndoCommand {
  public:
    Paso(Disenador &disenador, const QString &nombre, Estado antes, Estado despues)
        : QUndoCommand(nombre),
          disenador_(disenador),
          antes_(std::move(antes)),
          despues_(std::move(despues)) {}
    void undo() override { disenador_.Poner(antes_); }
    void redo() override { disenador_.Poner(despues_); }

  private:
    Disenador &disenador_;
    Estado antes_;
    Estado despues_;
};

bool Disenador::Estado::operator==(const Estado &otro) const {
    return formulario.diseno == otro.formulario.diseno && rutaLogo == otro.rutaLogo &&
           formulario.logo.cacheKey() == otro.formulario.logo.cacheKey();
}

Disenador::Disenador(const Servicios &servicios, QString carpetaFacturas, QObject *padre)
    : QObject(padre), servicios_(servicios), carpetaFacturas_(std::move(carpetaFacturas)) {
    estado_.formulario.logo = LogoIncorporado();
    historia_.setUndoLimit(kPasos);
    hayImpresoras_ = !servicios_.impresoras.Nombres().isEmpty();
    ElegirImpresora(servicios_.impresoras, servicios_.ajustes, Proposito::Ticket);
}

// --- what the canvas shows

const Pieza &Disenador::De(int numero) const {
    if (numero < pieza::kLogo)
        return Diseno().campos.at(Lugar(numero));
    return numero == pieza::kLogo ? Diseno().logo : Diseno().etiquetas.at(LugarEtiqueta(numero));
}

Pieza &Disenador::Editar(int numero) {
    return const_cast<Pieza &>(std::as_const(*this).De(numero));
}

QSizeF Disenador::Tamano(int numero) const {
    if (numero < pieza::kLogo)
        return {static_cast<double>(DatosDe(Lugar(numero)).ancho), kAltoCampo};
    if (numero == pieza::kLogo)
        return Logo().size() * kTwipsPorPixel;
    return {Diseno().etiquetas.at(LugarEtiqueta(numero)).ancho, kAltoCampo};
}

QRect Disenador::EnLienzo(int numero) const {
    const Pieza &de = De(numero);
    const QSizeF tamano = Tamano(numero);
    const double ancho = std::clamp<double>(tamano.width(), kMinimoEtiqueta * kTwipsPorPixel,
                                            std::max<double>(kAnchoLienzo, Logo().width() * kTwipsPorPixel));
    QRectF lugar(de.left, de.top, ancho, tamano.height());
    const QRectF visto = lugar & QRectF(0, 0, kAnchoLienzo, kAltoLienzo);
    if (numero != arrastrada_ && (visto.width() < kAsidero || visto.height() < kAsidero))
        lugar.moveTo(std::max(Dentro(de.left, ancho, kAnchoLienzo), 0.0F),
                     std::max(Dentro(de.top, tamano.height(), kAltoLienzo), 0.0F));
    return {APixeles(lugar.x()), APixeles(lugar.y()), APixeles(ancho), APixeles(tamano.height())};
}

QString Disenador::Rotulo(int numero) const {
    if (numero < pieza::kLogo)
        return DatosDe(Lugar(numero)).rotulo;
    return numero == pieza::kLogo ? QStringLiteral("Logotipo")
                                  : Diseno().etiquetas.at(LugarEtiqueta(numero)).texto;
}

QString Disenador::Nombre(int numero) {
    if (numero < pieza::kLogo)
        return QString::fromLatin1(DatosDe(Lugar(numero)).control);
    return numero == pieza::kLogo ? QStringLiteral("imgLogo")
                                  : QStringLiteral("lblPers(%1)").arg(numero - pieza::kEtiquetas);
}

// --- steps and their history

void Disenador::Poner(const Estado &estado) {
    estado_ = estado;
    emit Cambiado();
}

void Disenador::Anotar(const QString &nombre, const Estado &antes) {
    if (antes == estado_)
        emit Cambiado();
    else
        historia_.push(new Paso(*this, nombre, antes, estado_));
}

void Disenador::Hacer(const QString &nombre, const std::function<void()> &cambio) {
    const Estado antes = estado_;
    cambio();
    Anotar(nombre, antes);
}

void Disenador::Agrupar(const QString &nombre, const std::function<void()> &accion) {
    Hacer(nombre, accion);
}

void Disenador::PonerVisible(int numero, bool visible) {
    if (De(numero).visible == visible)
        return;
    Editar(numero).visible = visible;
    emit Cambiado();
}

void Disenador::Limitar(int numero) {
    Pieza &de = Editar(numero);
    const QSizeF tamano = Tamano(numero);
    de.left = Dentro(de.left, tamano.width(), kAnchoLienzo);
    de.top = Dentro(de.top, tamano.height(), kAltoLienzo);
}

void Disenador::Arrastrar(int numero, const QPointF &lugar) {
    if (!antesDeArrastrar_)
        antesDeArrastrar_ = estado_;
    arrastrada_ = numero;
    Pieza &de = Editar(numero);
    de.left = static_cast<float>(lugar.x());
    de.top = static_cast<float>(lugar.y());
    emit PiezaArrastrada(numero);
}

void Disenador::Soltar(int numero) {
    const Estado antes = antesDeArrastrar_.value_or(estado_);
    antesDeArrastrar_.reset();
    arrastrada_ = -1;
    Limitar(numero);
    Anotar(QStringLiteral("Mover"), antes);
}

void Disenador::Mover(int numero, const QPoint &pixeles) {
    if (Arrastrando())
        return;
    const auto mover = [&] {
        Pieza &de = Editar(numero);
        Limitar(numero); // a piece from beyond the canvas starts where it is shown
        de.left += static_cast<float>(pixeles.x() * kTwipsPorPixel);
        de.top += static_cast<float>(pixeles.y() * kTwipsPorPixel);
        Limitar(numero);
    };
    Hacer(QStringLiteral("Mover"), mover);
}

void Disenador::Ocultar(int numero) {
    if (Arrastrando())
        return;
    QString pregunta = QStringLiteral("Desea ocultar el campo seleccionado?");
    if (numero == pieza::kLogo)
        pregunta = QStringLiteral("Desea ocultar el logotipo de la empresa?");
    else if (numero > pieza::kLogo)
        pregunta = QStringLiteral("Desea eliminar la etiqueta?");
    if (servicios_.preguntas.Confirma(pregunta, Respuesta::No))
        Hacer(QStringLiteral("Ocultar"), [&] { Editar(numero).visible = false; });
}

void Disenador::Deshacer() {
    if (!Arrastrando())
        historia_.undo();
}

void Disenador::Rehacer() {
    if (!Arrastrando())
        historia_.redo();
}

Disenador::Pedido Disenador::AgregarEtiqueta(const EtiquetaPedida &pedida) {
    const QString texto = EnUnaLinea(pedida.texto).trimmed();
    const int pixeles = pedida.pixeles.toInt();
    Preguntas &preguntas = servicios_.preguntas;
    if (texto.isEmpty()) {
        preguntas.Informar(QStringLiteral("Debe ingresar el contenido de la etiqueta."));
        return Pedido::FaltaTexto;
    }
    if (pixeles > kMaximoEtiqueta || pixeles < kMinimoEtiqueta) {
        preguntas.Informar(pixeles > kMaximoEtiqueta
                               ? QStringLiteral("El tamaño máximo de la etiqueta es de 600 pixels.")
                               : QStringLiteral("El tañamo mínimo de la etiqueta es de 10 pixels."));
        return Pedido::MalTamano;
    }
    auto &etiquetas = estado_.formulario.diseno.etiquetas;
    const auto libre = std::find_if(etiquetas.begin(), etiquetas.end(),
                                    [](const EtiquetaLibre &etiqueta) { return !etiqueta.visible; });
    if (libre == etiquetas.end()) {
        preguntas.Informar(QStringLiteral("No hay etiquetas disponibles."));
        return Pedido::SinLugar;
    }
    const int numero = pieza::kEtiquetas + static_cast<int>(libre - etiquetas.begin());
    Hacer(QStringLiteral("Insertar etiqueta"), [&] {
        const Pieza lugar{true, libre->left, libre->top};
        *libre = {lugar,          static_cast<float>(pixeles * kTwipsPorPixel),
                  texto,          pedida.alineacion,
                  pedida.negrita, pedida.cursiva,
                  pedida.tachada, pedida.subrayada};
    });
    emit EtiquetaAgregada(numero);
    return Pedido::Agregada;
}

} // namespace tarvo
