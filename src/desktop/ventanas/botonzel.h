// The button of all windows: a push button with hover and press sounds, an own picture under the pointer, a
// link, and on demand (XPStyle) the bevelled look that it draws itself. Without XPStyle it looks as the style
// sheet says.
//
// Colours are numbers: with the highest bit set the index of a system colour, which follows the palette of
// the desktop; else red, green and blue from the lowest byte up. Sounds and links are asked of the
// application by an event (PedidoBoton), so that a press never waits for them.
#pragma once

#include <QEvent>
#include <QIcon>
#include <QPixmap>
#include <QPushButton>
#include <QVariantMap>

class QShortcutEvent;

namespace tarvo {

// What a button asks of the application object: a sound file to be played, or a link to be opened.
class PedidoBoton : public QEvent {
  public:
    enum class Que { Sonido, Enlace };
    PedidoBoton(Que pedido, QString adonde) : QEvent(Tipo()), que(pedido), destino(std::move(adonde)) {}
    static Type Tipo();
    const Que que;
    const QString destino;
};

namespace coloressistema {
inline constexpr uint kSistema = 0x80000000U;
inline constexpr uint kVentana = kSistema | 5;
inline constexpr uint kTextoVentana = kSistema | 8;
inline constexpr uint kResaltado = kSistema | 13;
inline constexpr uint kCaraBoton = kSistema | 15;
inline constexpr uint kSombra = kSistema | 16;
inline constexpr uint kTextoBoton = kSistema | 18;
inline constexpr uint kResalte3D = kSistema | 20;
inline constexpr uint kOscuro3D = kSistema | 21;
inline constexpr uint kClaro3D = kSistema | 22;
} // namespace coloressistema

class BotonZel : public QPushButton {
    Q_OBJECT
    Q_PROPERTY(QString Caption READ text WRITE setText)
    Q_PROPERTY(QIcon Picture READ icon WRITE setIcon)
    Q_PROPERTY(QIcon PictureHover READ PictureHover WRITE PonerPictureHover)
    Q_PROPERTY(int PicturePosition MEMBER picturePosition_ NOTIFY AspectoCambiado)
    Q_PROPERTY(int PictureWidth MEMBER pictureWidth_ NOTIFY AspectoCambiado)
    Q_PROPERTY(int PictureHeight MEMBER pictureHeight_ NOTIFY AspectoCambiado)
    Q_PROPERTY(int PictureSize MEMBER pictureSize_ NOTIFY AspectoCambiado)
    Q_PROPERTY(int OriginalPicSizeW MEMBER originalPicSizeW_ NOTIFY AspectoCambiado)
    Q_PROPERTY(int OriginalPicSizeH MEMBER originalPicSizeH_ NOTIFY AspectoCambiado)
    Q_PROPERTY(uint MaskColor MEMBER maskColor_ NOTIFY AspectoCambiado)
    Q_PROPERTY(QFont Font READ font WRITE setFont)
    Q_PROPERTY(QPixmap MouseIcon READ MouseIcon WRITE PonerMouseIcon)
    Q_PROPERTY(int MousePointer MEMBER mousePointer_ NOTIFY AspectoCambiado)
    Q_PROPERTY(bool DefCurHand MEMBER defCurHand_ NOTIFY AspectoCambiado)
    Q_PROPERTY(bool Enabled READ isEnabled WRITE setEnabled)
    Q_PROPERTY(uint BackColor MEMBER backColor_ NOTIFY AspectoCambiado)
    Q_PROPERTY(uint ForeColor MEMBER foreColor_ NOTIFY AspectoCambiado)
    Q_PROPERTY(bool ShowFocusRect MEMBER showFocusRect_ NOTIFY AspectoCambiado)
    Q_PROPERTY(bool ShowBorderOnFocus MEMBER showBorderOnFocus_ NOTIFY AspectoCambiado)
    Q_PROPERTY(bool Raised MEMBER raised_ NOTIFY AspectoCambiado)
    Q_PROPERTY(bool NoBorderEffect MEMBER noBorderEffect_ NOTIFY AspectoCambiado)
    Q_PROPERTY(int BEVEL MEMBER bevel_ NOTIFY AspectoCambiado)
    Q_PROPERTY(int BEVELDEPTH MEMBER bevelDepth_ NOTIFY AspectoCambiado)
    Q_PROPERTY(bool TransparentBG MEMBER transparentBG_ NOTIFY AspectoCambiado)
    Q_PROPERTY(bool XPStyle MEMBER xpStyle_ NOTIFY AspectoCambiado)
    Q_PROPERTY(bool XPWinStyle MEMBER xpWinStyle_ NOTIFY AspectoCambiado)
    Q_PROPERTY(bool XPDefaultColors MEMBER xpDefaultColors_ NOTIFY AspectoCambiado)
    Q_PROPERTY(uint XPColor_Pressed MEMBER xpColorPressed_ NOTIFY AspectoCambiado)
    Q_PROPERTY(uint XPColor_Hover MEMBER xpColorHover_ NOTIFY AspectoCambiado)
    Q_PROPERTY(bool XPShowBorderAlways MEMBER xpShowBorderAlways_ NOTIFY AspectoCambiado)
    Q_PROPERTY(QString SoundOver MEMBER soundOver_)
    Q_PROPERTY(QString SoundClick MEMBER soundClick_)
    Q_PROPERTY(QString URL MEMBER url_)
  public:
    explicit BotonZel(QWidget *padre = nullptr);
    explicit BotonZel(const QString &texto, QWidget *padre = nullptr);

    // The properties that differ from their defaults, by name, and back: what is missing gets its default. A
    // caption's default is the name of the control, a font's that of the container.
    QVariantMap Guardar() const;
    void Leer(const QVariantMap &bolsa);

    const QIcon &PictureHover() const { return pictureHover_; }
    void PonerPictureHover(const QIcon &imagen);
    const QPixmap &MouseIcon() const { return mouseIcon_; }
    void PonerMouseIcon(const QPixmap &imagen);

    // A colour as it is drawn now.
    QColor Color(uint color) const;

  signals:
    void AspectoCambiado();
    void Click();
    void KeyDown(int tecla);
    void KeyPress(const QString &texto);
    void KeyUp(int tecla);
    void MouseDown(Qt::MouseButton boton);
    void MouseMove(QPoint lugar);
    void MouseUp(Qt::MouseButton boton);
    void MouseIn();
    void MouseOut();

  protected:
    bool event(QEvent *evento) override;
    void paintEvent(QPaintEvent *evento) override;
    void initStyleOption(QStyleOptionButton *opcion) const override;
    void resizeEvent(QResizeEvent *evento) override;
    void mousePressEvent(QMouseEvent *evento) override;
    void mouseMoveEvent(QMouseEvent *evento) override;
    void mouseReleaseEvent(QMouseEvent *evento) override;
    void keyPressEvent(QKeyEvent *evento) override;
    void keyReleaseEvent(QKeyEvent *evento) override;
    void focusOutEvent(QFocusEvent *evento) override;

  private:
    void Aplicar();
    void RecortarEsquinas();
    void PonerBajoRaton(bool encima);
    void PulsarPorTecla(int tecla);
    bool PulsarPorLetra(QShortcutEvent &letra);
    QIcon ImagenVisible() const;
    struct AspectoBoton Aspecto() const;

    QIcon pictureHover_;
    int picturePosition_ = 1;
    int pictureWidth_ = 32;
    int pictureHeight_ = 32;
    int pictureSize_ = 1; // 1: PictureWidth x PictureHeight, else the picture's own size
    int originalPicSizeW_ = 32;
    int originalPicSizeH_ = 32;
    uint maskColor_ = 0;
    QPixmap mouseIcon_;
    int mousePointer_ = 0;
    bool defCurHand_ = true;
    uint backColor_ = coloressistema::kCaraBoton;
    uint foreColor_ = coloressistema::kTextoBoton;
    bool showFocusRect_ = true;
    bool showBorderOnFocus_ = true;
    bool raised_ = false;
    bool noBorderEffect_ = false;
    int bevel_ = 1;
    int bevelDepth_ = 8;
    bool transparentBG_ = false;
    bool xpStyle_ = false;
    bool xpWinStyle_ = true;
    bool xpDefaultColors_ = true;
    uint xpColorPressed_ = coloressistema::kResaltado;
    uint xpColorHover_ = coloressistema::kClaro3D;
    bool xpShowBorderAlways_ = false;
    QString soundOver_;
    QString soundClick_;
    QString url_;
    bool bajoRaton_ = false;   // the pointer is over the button
    bool teclaTomada_ = false; // until it goes up its repeats press nothing
};

} // namespace tarvo
