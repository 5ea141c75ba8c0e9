// A label for text of any length: what does not fit is elided, and shown whole in the tool tip. Its text() is
// always the whole text, and it never asks for more room than there is. Without text it shows its hint, dim.
#pragma once

#include <QLabel>

namespace tarvo {

class EtiquetaElidida : public QLabel {
    Q_OBJECT
    Q_PROPERTY(QString sugerencia MEMBER sugerencia_)
    // Asks for the room of its first `letras` characters, instead of a modest one.
    Q_PROPERTY(int letras MEMBER letras_)
  public:
    using QLabel::QLabel;
    // The width to ask for, in pixels, instead of what the text needs.
    void PonerAncho(int pixeles);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {0, AltoDeUnaLinea()}; }

  protected:
    void paintEvent(QPaintEvent *evento) override;

  private:
    int AltoDeUnaLinea() const;
    int AnchoPedido() const;
    QString sugerencia_;
    int letras_ = 0;
    int ancho_ = -1;
};

// A tool tip that shows `texto` letter by letter, also where it looks like markup; a long one on several
// lines.
QString AyudaLlana(const QString &texto);

} // namespace tarvo
