// A printing surface: what all paper of the program is written on.
//
// It has a current font and a print head. Text goes to the right of the head; a column is counted in
// characters of the current font and size from the left margin. SuperficieGrabada records
// and does it again on another one; SuperficiePintada paints on any QPagedPaintDevice, so paper and PDF are
// the same code.
#pragma once

#include <QImage>
#include <QString>

namespace tarvo {

struct Letra {
    QString familia = QStringLiteral("Courier New");
    double puntos = 10;
    bool negrita = false;
    bool cursiva = false;
    bool tachada = false;
    bool subrayada = false;
    bool operator==(const Letra &) const = default;
};

class Superficie {
  public:
    Superficie() = default;
    virtual ~Superficie() = default;
    Superficie(const Superficie &) = delete;
    Superficie &operator=(const Superficie &) = delete;

    const Letra &letra() const { return letra_; }
    void PonerLetra(const Letra &letra) { letra_ = letra; }
    void Familia(const QString &familia) { letra_.familia = familia; }
    void Tamano(double puntos) { letra_.puntos = puntos; }
    void Negrita(bool si) { letra_.negrita = si; }

    // Writes at the head and leaves the head behind the text. Control characters and line ends print as
    // blanks.
    virtual void Texto(const QString &texto) = 0;
    // Moves the head so that `caracteres` characters lie to its left (0 or less: the first column). A place
    // that the head has passed already is taken on the next line.
    virtual void Columna(int caracteres) = 0;
    virtual void FinLinea() = 0;
    // Moves the head to a point of the page, in twips from its upper left printable corner; on a form, from
    // the corner of the sheet.
    virtual void Posicion(int xTwips, int yTwips) = 0;
    // Draws a picture with its upper left corner at the point; size in twips.
    virtual void Imagen(const QImage &imagen, int xTwips, int yTwips, int anchoTwips, int altoTwips) = 0;
    virtual void NuevaPagina() = 0;
    // Width of a character of the current font and height of its lines, in twips. Nominal, unless the surface
    // has measured its own font.
    virtual double AnchoCaracter();
    virtual double AltoLinea();
    // Ends the document and hands it to the printer. Throws ErrorDatos: kImpresora when the printer fails,
    // kEscritura when the file of the PDF printer can't be written.
    virtual void Terminar() = 0;

    void Linea(const QString &texto) {
        Texto(texto);
        FinLinea();
    }

  protected:
    Letra letra_;
};

// The first `caracteres` characters of `texto`; a character of two code units isn't torn apart.
QString Cortar(const QString &texto, qsizetype caracteres);

} // namespace tarvo
