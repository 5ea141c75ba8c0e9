#include "documents/archivofactura.h"

#include "desktop/reloj.h"
#include "desktop/windows1252.h"
#include "documents/archivos.h"
#include "store/errordatos.h"

#include <QFileInfo>
#include <QSaveFile>
#include <QVarLengthArray>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>
#include <vector>

namespace tarvo {

namespace {

constexpr std::size_t kFichas = 368;
constexpr std::size_t kFichasMarca = 4; // maker, date, time, format: never looked at
constexpr qint64 kTrozo = 32 * 1024LL;
constexpr qsizetype kLargoLinea = 4LL * 1024 * 1024; // a line without its tokens by then has none

// --- writing

class Escritor {
  public:
    void Ficha(const QString &texto) {
        linea_ += texto;
        linea_ += QLatin1Char(',');
    }
    void Bandera(bool valor) { Ficha(valor ? QStringLiteral("1") : QStringLiteral("0")); }
    // Plain decimal text, as few digits as give the same number back.
    void Numero(float valor) {
        char texto[64];
        const auto fin =
            std::to_chars(texto, texto + sizeof texto, valor + 0.0F, std::chars_format::fixed).ptr;
        Ficha(QString::fromLatin1(texto, fin - texto));
    }
    void Lugar(const Pieza &pieza) {
        Bandera(pieza.visible);
        Numero(pieza.left);
        Numero(pieza.top);
    }
    // An alignment that is none leaves no token at all.
    void Alineacion(int valor) {
        if (valor >= 0 && valor <= 2)
            Ficha(QString::number(valor));
    }
    void Etiqueta(const EtiquetaLibre &etiqueta) {
        Lugar(etiqueta);
        Numero(etiqueta.ancho);
        Ficha(etiqueta.texto);
        Alineacion(etiqueta.alineacion);
        for (const bool estilo : {etiqueta.negrita, etiqueta.cursiva, etiqueta.tachada, etiqueta.subrayada})
            Bandera(estilo);
    }
    // A line end inside a token would end the line; a character that the code page lacks is a "?".
    QByteArray Bytes() {
        std::replace_if(
            linea_.begin(), linea_.end(), [](QChar c) { return c == u'\r' || c == u'\n'; }, QLatin1Char(' '));
        return AWindows1252(linea_) + "\r\n";
    }

  private:
    QString linea_;
};

// --- reading

// The bytes of the first line, or as many of them as hold all tokens: what follows is never looked at.
QByteArray PrimeraLinea(QIODevice &entrada) {
    QByteArray linea;
    std::size_t comas = 0;
    while (comas < kFichas && linea.size() < kLargoLinea) {
        const qsizetype antes = linea.size();
        linea.resize(antes + kTrozo);
        const qint64 leidos = std::max<qint64>(entrada.read(linea.data() + antes, kTrozo), 0);
        linea.resize(antes + leidos);
        const auto desde = linea.cbegin() + antes;
        const auto fin = std::find_if(desde, linea.cend(), [](char c) { return c == '\r' || c == '\n'; });
        comas += static_cast<std::size_t>(std::count(desde, fin, ','));
        const bool termina = fin != linea.cend() || leidos == 0;
        linea.truncate(fin - linea.cbegin());
        if (termina)
            break;
    }
    return linea;
}

[[noreturn]] void NoSeReconoce() {
    throw ErrorDatos(errores::kFormato, QStringLiteral("No se reconoce el formato del archivo."));
}

// The tokens as a queue. The first character of the line, the blank before the maker's name, belongs to no
// token; neither does what stands behind the last comma.
class Cola {
  public:
    explicit Cola(const QByteArray &linea) : linea_(DeWindows1252(linea)) {
        fichas_.reserve(kFichas);
        qsizetype desde = 1;
        for (qsizetype coma = linea_.indexOf(u','); coma >= 0 && fichas_.size() < kFichas;
             coma = linea_.indexOf(u',', coma + 1)) {
            fichas_.push_back(QStringView(linea_).sliced(desde, std::max<qsizetype>(coma - desde, 0)));
            desde = coma + 1;
        }
    }
    // The token `lugar` places behind the front.
    QStringView Texto(std::size_t lugar) const {
        if (frente_ + lugar >= fichas_.size())
            NoSeReconoce();
        return fichas_[frente_ + lugar];
    }
    float Numero(std::size_t lugar) const {
        QStringView texto = Texto(lugar).trimmed();
        if (texto.startsWith(u'+') && !texto.startsWith(u"+-"))
            texto = texto.sliced(1);
        QVarLengthArray<char, 32> letras(texto.size());
        std::ranges::transform(texto, letras.begin(), [](QChar c) { return c.toLatin1(); });
        float numero = 0;
        const auto leido = std::from_chars(letras.cbegin(), letras.cend(), numero);
        if (leido.ec != std::errc() || leido.ptr != letras.cend() || !std::isfinite(numero))
            NoSeReconoce();
        return numero;
    }
    bool Bandera(std::size_t lugar) const {
        if (const QStringView tal = Texto(lugar); tal == u"1" || tal == u"0") // nearly always
            return tal == u"1";
        const QStringView texto = Texto(lugar).trimmed();
        if (texto.compare(u"true", Qt::CaseInsensitive) == 0)
            return true;
        return texto.compare(u"false", Qt::CaseInsensitive) != 0 && Numero(lugar) != 0;
    }
    int Entero(std::size_t lugar) const {
        const float numero = std::nearbyint(Numero(lugar));
        if (std::abs(numero) > std::numeric_limits<qint16>::max())
            NoSeReconoce();
        return static_cast<int>(numero);
    }
    void Quitar(std::size_t cuantas) {
        Texto(cuantas - 1);
        frente_ += cuantas;
    }

  private:
    QString linea_;
    std::vector<QStringView> fichas_;
    std::size_t frente_ = 0;
};

void LeerPieza(Cola &cola, Pieza &pieza) {
    pieza.left = cola.Numero(1);
    pieza.top = cola.Numero(2);
    pieza.visible = cola.Bandera(0);
    cola.Quitar(3);
}

void LeerEtiqueta(Cola &cola, EtiquetaLibre &etiqueta) {
    etiqueta.left = cola.Numero(1);
    etiqueta.top = cola.Numero(2);
    etiqueta.ancho = cola.Numero(3);
    etiqueta.texto = cola.Texto(4).toString();
    etiqueta.alineacion = cola.Entero(5);
    etiqueta.negrita = cola.Bandera(6);
    etiqueta.cursiva = cola.Bandera(7);
    etiqueta.tachada = cola.Bandera(8);
    etiqueta.subrayada = cola.Bandera(9);
    etiqueta.visible = cola.Bandera(0);
    cola.Quitar(10);
}

[[noreturn]] void FallarGuardado(const QString &ruta, const QString &motivo) {
    const bool hayCarpeta = QFileInfo(QFileInfo(ruta).absolutePath()).isDir();
    throw ErrorDatos(hayCarpeta ? errores::kAccesoRuta : errores::kRutaNoEncontrada,
                     QStringLiteral("No se pudo escribir \"%1\": %2").arg(ruta, motivo), motivo);
}

} // namespace

void EscribirDiseno(QIODevice &salida, const DisenoFactura &diseno, const QString &rutaLogo,
                    const QDateTime &momento) {
    Escritor linea;
    linea.Ficha(QStringLiteral(" Velbrina Software"));
    linea.Ficha(TextoFecha(momento));
    linea.Ficha(momento.toString(QStringLiteral("HH:mm:ss")));
    linea.Ficha(QStringLiteral("Tarvo 2.9"));
    for (const Pieza &campo : diseno.campos)
        linea.Lugar(campo);
    linea.Lugar(diseno.logo);
    for (const EtiquetaLibre &etiqueta : diseno.etiquetas)
        linea.Etiqueta(etiqueta);
    linea.Ficha(rutaLogo);
    const QByteArray bytes = linea.Bytes();
    if (salida.write(bytes) != bytes.size())
        throw ErrorDatos(errores::kEscritura,
                         QStringLiteral("No se pudo escribir la factura: %1").arg(salida.errorString()),
                         salida.errorString());
}

QString LeerDiseno(QIODevice &entrada, DisenoFactura &diseno) {
    Cola cola(PrimeraLinea(entrada));
    cola.Quitar(kFichasMarca);
    for (Pieza &campo : diseno.campos)
        LeerPieza(cola, campo);
    LeerPieza(cola, diseno.logo);
    for (EtiquetaLibre &etiqueta : diseno.etiquetas)
        LeerEtiqueta(cola, etiqueta);
    return cola.Texto(0).toString();
}

void GuardarDiseno(const QString &ruta, const DisenoFactura &diseno, const QString &rutaLogo,
                   const QDateTime &momento) {
    QSaveFile archivo(ruta);
    if (!archivo.open(QIODevice::WriteOnly))
        FallarGuardado(ruta, archivo.errorString());
    EscribirDiseno(archivo, diseno, rutaLogo, momento);
    // The commit forgets what the flush could not write.
    if (!archivo.flush() || !archivo.commit())
        throw ErrorDatos(errores::kEscritura,
                         QStringLiteral("No se pudo escribir \"%1\": %2").arg(ruta, archivo.errorString()),
                         archivo.errorString());
}

QString CargarDiseno(const QString &ruta, DisenoFactura &diseno) {
    const auto archivo = AbrirParaLeer(ruta);
    return LeerDiseno(*archivo, diseno);
}

} // namespace tarvo
