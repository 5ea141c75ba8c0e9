#include "documents/ventanas/lienzo.h"

#include "desktop/ventanas/estilo.h"
#include "documents/disenador.h"
#include "documents/guias.h"
#include "documents/ventanas/piezalienzo.h"

#include <QPainter>

#include <utility>

namespace tarvo {

namespace {

constexpr int kLetra = 11; // pixels: a field is 16 high
constexpr int kLetraMenor = 8;
constexpr int kSangria = 2;
const QColor kColorEtiqueta(192, 192, 255);
const QColor kColorGuia(200, 24, 48);

// The caption of a field stands in it whole, if need be in smaller type.
int AltoDeLetra(QFont letra, const QString &rotulo, int ancho) {
    for (int pixeles = kLetra; pixeles > kLetraMenor; --pixeles) {
        letra.setPixelSize(pixeles);
        if (QFontMetrics(letra).horizontalAdvance(rotulo) <= ancho)
            return pixeles;
    }
    return kLetraMenor;
}

Qt::Alignment Alineacion(int valor) {
    const Qt::AlignmentFlag lado = valor == 1   ? Qt::AlignRight
                                   : valor == 2 ? Qt::AlignHCenter
                                                : Qt::AlignLeft;
    return lado | Qt::AlignVCenter;
}

} // namespace

// Lies over the pieces and lets the mouse through.
class Lienzo::Trazos final : public QWidget {
  public:
    explicit Trazos(QWidget *lienzo) : QWidget(lienzo) { setAttribute(Qt::WA_TransparentForMouseEvents); }
    void Poner(const QRect &marco, std::vector<QLine> guias) {
        marco_ = marco;
        guias_ = std::move(guias);
        raise();
        update();
    }

  protected:
    void paintEvent(QPaintEvent *) override {
        QPainter pintor(this);
        pintor.setPen(QPen(kColorGuia, 1, Qt::DashLine));
        for (const QLine &guia : guias_)
            pintor.drawLine(guia);
        if (marco_.isNull())
            return;
        pintor.setRenderHint(QPainter::Antialiasing);
        pintor.setPen(QPen(colores::kTitulo, 2));
        pintor.drawRoundedRect(QRectF(marco_).adjusted(-2, -2, 2, 2), 3, 3);
    }

  private:
    QRect marco_;
    std::vector<QLine> guias_;
};

Lienzo::Lienzo(QWidget *padre) : QWidget(padre), trazos_(new Trazos(this)) {
    setFixedSize(kAnchoLienzo / kTwipsPorPixel, kAltoLienzo / kTwipsPorPixel);
    trazos_->setGeometry(rect());
}

// A piece that dies with the focus still tells that it loses it.
Lienzo::~Lienzo() {
    for (PiezaLienzo *pieza : piezas_)
        pieza->disconnect(this);
}

void Lienzo::Mostrar(Disenador &disenador) {
    disenador_ = &disenador;
    for (int numero = 0; numero < pieza::kTodas; ++numero)
        CrearPieza(numero);
    connect(disenador_, &Disenador::Cambiado, this, &Lienzo::Actualizar);
    connect(disenador_, &Disenador::FondoCambiado, this, [this] { update(); });
    connect(disenador_, &Disenador::PiezaArrastrada, this, [this](int numero) {
        piezas_[static_cast<std::size_t>(numero)]->setGeometry(disenador_->EnLienzo(numero));
        Trazar();
    });
    connect(disenador_, &Disenador::EtiquetaAgregada, this, [this](int numero) {
        piezas_[static_cast<std::size_t>(numero)]->raise();
        piezas_[static_cast<std::size_t>(numero)]->setFocus();
        Trazar();
    });
    Actualizar();
}

void Lienzo::CrearPieza(int numero) {
    auto *pieza = new PiezaLienzo(numero, this);
    pieza->setObjectName(Disenador::Nombre(numero));
    QPalette colores = pieza->palette();
    colores.setColor(QPalette::Window, numero < pieza::kLogo ? DatosDe(static_cast<std::size_t>(numero)).color
                                                             : kColorEtiqueta);
    pieza->setPalette(colores);
    if (numero != pieza::kLogo)
        pieza->setIndent(kSangria);
    if (numero < pieza::kLogo)
        pieza->setText(disenador_->Rotulo(numero));
    piezas_.push_back(pieza);
    ConectarPieza(*pieza);
}

void Lienzo::ConectarPieza(PiezaLienzo &pieza) {
    const int numero = pieza.Numero();
    connect(&pieza, &PiezaLienzo::Arrastrada, this,
            [this, numero](const QPointF &cursor) { Arrastrar(numero, cursor); });
    connect(&pieza, &PiezaLienzo::Soltada, this, [this, numero] {
        arrastrada_ = -1;
        disenador_->Soltar(numero);
        emit PiezaSoltada();
    });
    connect(&pieza, &PiezaLienzo::DobleClic, this, [this, numero] { disenador_->Ocultar(numero); });
    connect(&pieza, &PiezaLienzo::Suprimida, this, [this, numero] { disenador_->Ocultar(numero); });
    connect(&pieza, &PiezaLienzo::Empujada, this,
            [this, numero](const QPoint &pixeles) { disenador_->Mover(numero, pixeles); });
    connect(&pieza, &PiezaLienzo::Enfocada, this, [this, numero](bool si) {
        if (si)
            enTrabajo_ = numero;
        Trazar();
    });
}

// The corner of the piece goes where the cursor is, wherever it was taken.
void Lienzo::Arrastrar(int numero, const QPointF &cursor) {
    const QPoint lugar = mapFromGlobal(cursor).toPoint();
    arrastrada_ = numero;
    cursor_ = cursor;
    disenador_->Arrastrar(numero, QPointF(lugar) * kTwipsPorPixel);
    emit CursorMovido(lugar);
}

void Lienzo::Seguir() {
    if (arrastrada_ >= 0)
        Arrastrar(arrastrada_, cursor_);
}

void Lienzo::Vestir(PiezaLienzo &pieza) {
    const int numero = pieza.Numero();
    QFont letra = font();
    letra.setPixelSize(kLetra);
    if (numero < pieza::kLogo) {
        const int ancho = disenador_->EnLienzo(numero).width() - 2 * kSangria;
        letra.setPixelSize(AltoDeLetra(letra, pieza.text(), ancho));
    } else if (numero == pieza::kLogo) {
        if (std::exchange(logo_, disenador_->Logo().cacheKey()) != disenador_->Logo().cacheKey())
            pieza.setPixmap(QPixmap::fromImage(disenador_->Logo()));
    } else {
        const auto lugar = static_cast<std::size_t>(numero - pieza::kEtiquetas);
        const EtiquetaLibre &etiqueta = disenador_->Diseno().etiquetas[lugar];
        letra.setBold(etiqueta.negrita);
        letra.setItalic(etiqueta.cursiva);
        letra.setStrikeOut(etiqueta.tachada);
        letra.setUnderline(etiqueta.subrayada);
        pieza.setText(etiqueta.texto);
        pieza.setAlignment(Alineacion(etiqueta.alineacion));
    }
    pieza.setFont(letra);
    pieza.setAccessibleName(disenador_->Rotulo(numero));
    pieza.setGeometry(disenador_->EnLienzo(numero));
    pieza.setVisible(disenador_->De(numero).visible);
}

void Lienzo::Actualizar() {
    for (PiezaLienzo *pieza : piezas_)
        Vestir(*pieza);
    Trazar();
}

int Lienzo::EnTrabajo() const {
    return enTrabajo_ >= 0 && disenador_->De(enTrabajo_).visible ? enTrabajo_ : -1;
}

void Lienzo::Trazar() {
    const int numero = EnTrabajo();
    QRect marco;
    std::vector<QLine> guias;
    if (numero >= 0) {
        marco = piezas_[static_cast<std::size_t>(numero)]->geometry();
        std::vector<QRect> otras;
        for (const PiezaLienzo *otra : piezas_)
            if (arrastrada_ >= 0 && !otra->isHidden() && otra->Numero() != numero)
                otras.push_back(otra->geometry());
        guias = GuiasDe(marco, otras, size());
    }
    trazos_->Poner(marco, std::move(guias));
    emit TrabajoCambiado();
}

void Lienzo::paintEvent(QPaintEvent *) {
    QPainter pintor(this);
    pintor.fillRect(rect(), Qt::white);
    if (disenador_ != nullptr && !disenador_->Fondo().isNull())
        pintor.drawImage(0, 0, disenador_->Fondo());
    pintor.setPen(colores::kTextoTenue);
    pintor.drawRect(rect().adjusted(0, 0, -1, -1));
}

} // namespace tarvo
