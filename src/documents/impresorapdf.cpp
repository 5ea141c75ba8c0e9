#include "documents/impresorapdf.h"

#include "documents/listado.h"
#include "documents/superficiegrabada.h"
#include "documents/superficiepintada.h"
#include "documents/ticket.h"
#include "store/errordatos.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QSaveFile>

#include <utility>

namespace tarvo {

namespace {

constexpr double kMargen = 4;         // millimetres
constexpr double kAnchoRollo = 80;    // millimetres
constexpr double kLargoPagina = 5000; // millimetres; a PDF page can't be longer than 5080

[[noreturn]] void FallarEscritura(const QString &ruta) {
    throw ErrorDatos(errores::kEscritura, QStringLiteral("No se pudo escribir \"%1\".").arg(ruta));
}

QString NombreBase(const QString &titulo, const QDateTime &momento) {
    static const QRegularExpression acentos(QStringLiteral("\\p{Mn}+"));
    static const QRegularExpression otros(QStringLiteral("[^a-z0-9]+"));
    QString nombre = titulo.normalized(QString::NormalizationForm_D).toLower().remove(acentos);
    return nombre.replace(otros, QStringLiteral("-")) + momento.toString(QStringLiteral("-yyyyMMdd-HHmmss-"));
}

// Where the document goes when it is whole.
struct Destino {
    QString carpeta;
    QString titulo;
    QDateTime momento;

    void Guardar(const QByteArray &datos) const {
        QSaveFile archivo(RutaLibre());
        const bool escrito = archivo.open(QIODevice::WriteOnly) && archivo.write(datos) == datos.size() &&
                             archivo.flush() && archivo.commit();
        if (!escrito)
            FallarEscritura(archivo.fileName());
    }

  private:
    QString RutaLibre() const {
        const QString base = carpeta + QLatin1Char('/') + NombreBase(titulo, momento);
        for (int numero = 1;; ++numero) {
            QString ruta = QStringLiteral("%1%2.pdf").arg(base).arg(numero, 3, 10, QLatin1Char('0'));
            if (!QFileInfo::exists(ruta))
                return ruta;
        }
    }
};

QPageLayout ConMargenes(const QPageSize &tamano) {
    return {tamano, QPageLayout::Portrait, QMarginsF(kMargen, kMargen, kMargen, kMargen),
            QPageLayout::Millimeter};
}

QPageLayout HojaRollo(double largo) {
    return ConMargenes(
        QPageSize(QSizeF(kAnchoRollo, largo), QPageSize::Millimeter, QString(), QPageSize::ExactMatch));
}

std::unique_ptr<QPdfWriter> EscritorPdf(QBuffer &salida, const QPageLayout &hoja, const QString &titulo) {
    salida.open(QIODevice::WriteOnly);
    auto escritor = std::make_unique<QPdfWriter>(&salida);
    escritor->setTitle(titulo);
    escritor->setCreator(QStringLiteral("Tarvo"));
    escritor->setPageLayout(hoja);
    return escritor;
}

// Waits for the end of the slip, measures it, and cuts the paper there.
class RolloPdf final : public SuperficieGrabada {
  public:
    explicit RolloPdf(Destino destino) : destino_(std::move(destino)) {}

    void Terminar() override {
        QBuffer salida;
        SuperficiePintada papel(EscritorPdf(salida, HojaRollo(Largo()), destino_.titulo),
                                RejillaDe(ClasePapel::Rollo));
        Repetir(papel);
        papel.Terminar();
        destino_.Guardar(salida.data());
    }

  private:
    double Largo() const {
        QBuffer borrador;
        SuperficiePintada papel(EscritorPdf(borrador, HojaRollo(kLargoPagina), destino_.titulo),
                                RejillaDe(ClasePapel::Rollo));
        Repetir(papel);
        return papel.Paginas() > 1 ? kLargoPagina : papel.AltoUsado() + 2 * kMargen;
    }
    Destino destino_;
};

std::unique_ptr<Superficie> HojasPdf(const Destino &destino, ClasePapel clase) {
    const auto salida = std::make_shared<QBuffer>();
    QPageLayout hoja = ConMargenes(QPageSize(QPageSize::A4));
    const auto alTerminar = [salida, destino] { destino.Guardar(salida->data()); };
    if (clase == ClasePapel::Hoja)
        return std::make_unique<SuperficiePintada>(EscritorPdf(*salida, hoja, destino.titulo),
                                                   RejillaDe(clase), alTerminar);
    hoja.setMargins({});
    return std::make_unique<SuperficiePintada>(EscritorPdf(*salida, hoja, destino.titulo), Formulario(),
                                               alTerminar);
}

} // namespace

Rejilla RejillaDe(ClasePapel clase) {
    return clase == ClasePapel::Rollo ? Rejilla{kColumnasTicket, 8} : Rejilla{kColumnasListado, 10};
}

std::unique_ptr<Superficie> NuevoDocumentoPdf(const QString &carpeta, ClasePapel clase, const QString &titulo,
                                              const QDateTime &momento) {
    if (!QDir().mkpath(carpeta))
        FallarEscritura(carpeta);
    const Destino destino{carpeta, titulo, momento};
    if (clase == ClasePapel::Rollo)
        return std::make_unique<RolloPdf>(destino);
    return HojasPdf(destino, clase);
}

} // namespace tarvo
