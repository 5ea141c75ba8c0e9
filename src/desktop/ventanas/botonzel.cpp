#include "desktop/ventanas/botonzel.h"

#include "desktop/ventanas/pintorboton.h"
#include "desktop/ventanas/ritmoteclas.h"

#include <QApplication>
#include <QBitmap>
#include <QKeyEvent>
#include <QMetaProperty>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QShortcutEvent>
#include <QStyleOptionButton>

#include <memory>

namespace tarvo {

namespace {

constexpr int kMenorLado = 10; // pixels; 150 twips
const QString kSonidoEncima = QStringLiteral(".\\resources\\over.wav");
const QString kSonidoClic = QStringLiteral(".\\resources\\click.wav");

void Pedir(PedidoBoton::Que que, const QString &destino) {
    if (!destino.isEmpty())
        QCoreApplication::postEvent(qApp, new PedidoBoton(que, destino));
}

// The pointers by their numbers; any other is the usual one.
Qt::CursorShape CursorDe(int numero) {
    switch (numero) {
    case 2:
        return Qt::CrossCursor;
    case 3:
        return Qt::IBeamCursor;
    case 11:
        return Qt::WaitCursor;
    case 12:
        return Qt::ForbiddenCursor;
    default:
        return Qt::ArrowCursor;
    }
}

// The properties of this class in the order of their declaration.
template <typename Accion> void ConPropiedades(Accion accion) {
    const QMetaObject &meta = BotonZel::staticMetaObject;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i)
        accion(meta.property(i));
}

// Two pictures can't be compared: one that is there is no default.
bool EsDefecto(const QVariant &valor, const QVariant &defecto) {
    if (valor.metaType() == QMetaType::fromType<QIcon>())
        return valor.value<QIcon>().isNull();
    if (valor.metaType() == QMetaType::fromType<QPixmap>())
        return valor.value<QPixmap>().isNull();
    return valor == defecto;
}

// Every button of the mouse presses, but the right one.
std::unique_ptr<QMouseEvent> ComoIzquierdo(const QMouseEvent &evento) {
    if (evento.button() == Qt::RightButton || evento.button() == Qt::LeftButton)
        return std::unique_ptr<QMouseEvent>(evento.clone());
    return std::make_unique<QMouseEvent>(evento.type(), evento.position(), evento.globalPosition(),
                                         Qt::LeftButton, evento.buttons() | Qt::LeftButton,
                                         evento.modifiers());
}

} // namespace

QEvent::Type PedidoBoton::Tipo() {
    static const auto tipo = Type(QEvent::registerEventType());
    return tipo;
}

BotonZel::BotonZel(QWidget *padre) : BotonZel(QString(), padre) {}

BotonZel::BotonZel(const QString &texto, QWidget *padre)
    : QPushButton(texto, padre), soundOver_(kSonidoEncima), soundClick_(kSonidoClic) {
    connect(this, &BotonZel::AspectoCambiado, this, &BotonZel::Aplicar);
    connect(this, &QAbstractButton::clicked, this, [this] {
        const QString destino = url_;
        emit Click();
        Pedir(PedidoBoton::Que::Enlace, destino);
    });
    Aplicar();
}

QVariantMap BotonZel::Guardar() const {
    BotonZel patron(objectName(), parentWidget());
    QVariantMap bolsa;
    ConPropiedades([&](const QMetaProperty &propiedad) {
        const QVariant valor = propiedad.read(this);
        if (!EsDefecto(valor, propiedad.read(&patron)))
            bolsa.insert(QString::fromLatin1(propiedad.name()), valor);
    });
    return bolsa;
}

void BotonZel::Leer(const QVariantMap &bolsa) {
    const BotonZel patron(objectName()); // on no container, whose state is none of its own
    ConPropiedades([&](const QMetaProperty &propiedad) {
        propiedad.write(this, bolsa.value(QString::fromLatin1(propiedad.name()), propiedad.read(&patron)));
    });
    if (!bolsa.contains(QStringLiteral("Font")))
        setFont(QFont()); // the container's, also when that changes
}

QColor BotonZel::Color(uint color) const {
    using namespace coloressistema;
    switch (color) {
    case kResaltado:
        return palette().color(QPalette::Highlight);
    case kSombra:
        return palette().color(QPalette::Dark);
    case kVentana:
        return palette().color(QPalette::Base);
    case kTextoVentana:
        return palette().color(QPalette::Text);
    case kTextoBoton:
        return palette().color(QPalette::ButtonText);
    case kResalte3D:
        return palette().color(QPalette::Light);
    case kOscuro3D:
        return palette().color(QPalette::Shadow);
    case kClaro3D:
        return palette().color(QPalette::Midlight);
    default:
        if ((color & kSistema) != 0)
            return palette().color(QPalette::Button);
        return {int(color & 0xFF), int(color >> 8 & 0xFF), int(color >> 16 & 0xFF)};
    }
}

// --- look

void BotonZel::PonerPictureHover(const QIcon &imagen) {
    pictureHover_ = imagen;
    update();
}

void BotonZel::PonerMouseIcon(const QPixmap &imagen) {
    mouseIcon_ = imagen;
    Aplicar();
}

void BotonZel::Aplicar() {
    if (defCurHand_)
        setCursor(Qt::PointingHandCursor);
    else if (!mouseIcon_.isNull())
        setCursor(QCursor(mouseIcon_));
    else
        setCursor(CursorDe(mousePointer_));
    RecortarEsquinas();
    update();
}

// Two pixels less at each corner of the outer row, one in the next.
void BotonZel::RecortarEsquinas() {
    if (!xpStyle_ || !xpWinStyle_) {
        clearMask();
        return;
    }
    QRegion region(rect());
    for (const int fila : {0, 1}) {
        const int largo = 2 - fila;
        for (const int y : {fila, height() - 1 - fila}) {
            region -= QRect(0, y, largo, 1);
            region -= QRect(width() - largo, y, largo, 1);
        }
    }
    setMask(region);
}

QIcon BotonZel::ImagenVisible() const {
    return bajoRaton_ && !pictureHover_.isNull() ? pictureHover_ : icon();
}

AspectoBoton BotonZel::Aspecto() const {
    using namespace coloressistema;
    AspectoBoton aspecto;
    aspecto.zona = rect();
    aspecto.texto = text();
    aspecto.letra = font();
    aspecto.tamanoImagen = pictureSize_ == 1 ? QSize(pictureWidth_, pictureHeight_)
                                             : QSize(originalPicSizeW_, originalPicSizeH_);
    QPixmap imagen = ImagenVisible().pixmap(aspecto.tamanoImagen, devicePixelRatioF());
    if (!imagen.isNull() && maskColor_ != 0)
        imagen.setMask(imagen.createMaskFromColor(Color(maskColor_)));
    aspecto.imagen = imagen.isNull() ? QIcon() : QIcon(imagen);
    aspecto.posicionImagen = picturePosition_;
    aspecto.fondo = Color(backColor_);
    aspecto.colorTexto = Color(foreColor_);
    aspecto.borde = Color(kOscuro3D);
    aspecto.resalte = Color(kResalte3D);
    aspecto.sombra = Color(kSombra);
    aspecto.enfocado = Color(xpDefaultColors_ ? kResaltado : xpColorPressed_);
    aspecto.bajoRaton = Color(xpDefaultColors_ ? kClaro3D : xpColorHover_);
    aspecto.bisel = bevel_;
    aspecto.hondura = bevelDepth_;
    aspecto.transparente = transparentBG_;
    aspecto.sinBorde = noBorderEffect_;
    aspecto.bordeSiempre = xpShowBorderAlways_ || raised_;
    aspecto.rectanguloFoco = hasFocus() && showFocusRect_ && !xpWinStyle_;
    aspecto.habilitado = isEnabled();
    aspecto.presionado = isDown() || isChecked();
    aspecto.conFoco = hasFocus() && showBorderOnFocus_;
    aspecto.conRaton = bajoRaton_;
    return aspecto;
}

void BotonZel::paintEvent(QPaintEvent *evento) {
    if (!xpStyle_) {
        QPushButton::paintEvent(evento);
        return;
    }
    QPainter pintor(this);
    PintarBoton(pintor, Aspecto());
}

void BotonZel::initStyleOption(QStyleOptionButton *opcion) const {
    QPushButton::initStyleOption(opcion);
    opcion->icon = ImagenVisible();
}

void BotonZel::resizeEvent(QResizeEvent *evento) {
    QPushButton::resizeEvent(evento);
    if (width() < kMenorLado || height() < kMenorLado)
        resize(qMax(width(), kMenorLado), qMax(height(), kMenorLado));
    RecortarEsquinas();
}

// --- mouse

bool BotonZel::event(QEvent *evento) {
    if (evento->type() == QEvent::Enter)
        PonerBajoRaton(true);
    else if (evento->type() == QEvent::Leave || evento->type() == QEvent::Hide)
        PonerBajoRaton(false);
    else if (evento->type() == QEvent::Shortcut)
        return PulsarPorLetra(*static_cast<QShortcutEvent *>(evento));
    return QPushButton::event(evento);
}

void BotonZel::PonerBajoRaton(bool encima) {
    if (bajoRaton_ == encima)
        return;
    bajoRaton_ = encima;
    update();
    if (!encima) {
        emit MouseOut();
        return;
    }
    emit MouseIn();
    if (isEnabled())
        Pedir(PedidoBoton::Que::Sonido, soundOver_);
}

void BotonZel::mousePressEvent(QMouseEvent *evento) {
    QPushButton::mousePressEvent(ComoIzquierdo(*evento).get());
    emit MouseDown(evento->button());
}

// While a button of the mouse is held no Leave comes.
void BotonZel::mouseMoveEvent(QMouseEvent *evento) {
    const QPoint lugar = evento->position().toPoint();
    PonerBajoRaton(rect().contains(lugar));
    QPushButton::mouseMoveEvent(evento);
    emit MouseMove(lugar);
}

void BotonZel::mouseReleaseEvent(QMouseEvent *evento) {
    const Qt::MouseButton boton = evento->button();
    if (boton != Qt::RightButton && isDown() && hitButton(evento->position().toPoint()))
        Pedir(PedidoBoton::Que::Sonido, soundClick_);
    const QPointer<BotonZel> vivo(this); // its handler may close the window
    QPushButton::mouseReleaseEvent(ComoIzquierdo(*evento).get());
    if (vivo)
        emit MouseUp(boton);
}

// --- keyboard

void BotonZel::keyPressEvent(QKeyEvent *evento) {
    const int tecla = evento->key();
    emit KeyDown(tecla);
    emit KeyPress(evento->text());
    if (!EsEntrar(tecla) && tecla != Qt::Key_Space) {
        QPushButton::keyPressEvent(evento);
        return;
    }
    if (!teclaTomada_ && !evento->isAutoRepeat())
        PulsarPorTecla(tecla);
}

// A key presses when it goes down, and a held one once.
void BotonZel::PulsarPorTecla(int tecla) {
    teclaTomada_ = true;
    if (tecla != Qt::Key_Space) {
        click();
        return;
    }
    setDown(true);
    repaint();
    nextCheckState();
    emit clicked(isChecked());
}

// At once, where a push button waits a moment: the next keys may be there already, meant for what it opens.
bool BotonZel::PulsarPorLetra(QShortcutEvent &letra) {
    if (letra.isAmbiguous())
        return QPushButton::event(&letra);
    setShortcutAutoRepeat(letra.shortcutId(), false);
    click();
    return true;
}

void BotonZel::keyReleaseEvent(QKeyEvent *evento) {
    if (!evento->isAutoRepeat()) {
        teclaTomada_ = false;
        setDown(false);
    }
    emit KeyUp(evento->key());
    if (evento->key() != Qt::Key_Space)
        QPushButton::keyReleaseEvent(evento);
}

// The key may go up over another control.
void BotonZel::focusOutEvent(QFocusEvent *evento) {
    teclaTomada_ = false;
    QPushButton::focusOutEvent(evento);
    setDown(false);
}

} // namespace tarvo
