#include "store/store.h"

#include "store/conexion.h"
#include "store/errordatos.h"
#include "store/plantillas.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QThread>

#include <exception>
#include <iterator>

namespace tarvo {

namespace {

struct Tabla {
    const char *archivo;
    const char *esquema;
    Cursor FrmBases::*cursor;
};

// The order of opening.
constexpr Tabla kTablas[] = {
    {"config.mdb", "main", &FrmBases::datIVA},
    {"config.mdb", "main", &FrmBases::datImpuesto},
    {"config.mdb", "main", &FrmBases::datFactura},
    {"config.mdb", "main", &FrmBases::datCategorias},
    {"config.mdb", "main", &FrmBases::datCategorias2},
    {"config.mdb", "main", &FrmBases::datVendedores},
    {"config.mdb", "main", &FrmBases::datTicket},
    {"clientes.mdb", "clientes", &FrmBases::datClientes},
    {"proveedores.mdb", "proveedores", &FrmBases::datProveedores},
    {"articulos.mdb", "articulos", &FrmBases::datArticulos},
    {"ventas.mdb", "ventas", &FrmBases::datVentas},
};

// Made on demand; files of a fresh installation don't hold it.
constexpr const char *kTablaUsuarios =
    "CREATE TABLE IF NOT EXISTS main.Usuarios(id INTEGER PRIMARY KEY AUTOINCREMENT, codigo TEXT DEFAULT '', "
    "articulo TEXT DEFAULT '', precio TEXT DEFAULT '', cantidad TEXT DEFAULT '')";

void AbrirArchivo(std::unique_ptr<Conexion> &conexion, const QString &ruta, const char *esquema) {
    if (conexion)
        conexion->Adjuntar(ruta, esquema);
    else
        conexion = std::make_unique<Conexion>(ruta);
}

// A file of which no table could be opened is let go, so that it stays as it was found.
void Soltar(std::unique_ptr<Conexion> &conexion, const char *esquema) {
    if (std::string_view(esquema) == "main")
        conexion.reset();
    else
        conexion->Separar(esquema);
}

// The super-journals of transactions that a failure cut short: with all files open, recovered and locked,
// nothing refers to them any more. (A file's own journal must stay: the engine may hold it open.)
void QuitarRestos(const QString &carpeta) {
    const QDir datos(carpeta);
    for (const QString &resto : datos.entryList({QStringLiteral("config.mdb-mj*")}, QDir::Files))
        QFile::remove(datos.filePath(resto));
}

} // namespace

FrmBases::FrmBases(QString carpetaDatos, Moneda moneda)
    : carpeta_(std::move(carpetaDatos)), moneda_(std::move(moneda)) {}

bool FrmBases::EsDeLosDatos(const QString &ruta) const {
    const QString datos = QFileInfo(carpeta_).canonicalFilePath();
    const QFileInfo archivo(ruta);
    // Through a link too; one that isn't there lies where its folder does.
    const QString lugar = archivo.exists() ? archivo.canonicalFilePath()
                                           : QFileInfo(archivo.absolutePath()).canonicalFilePath() + u'/';
    return !datos.isEmpty() && lugar.startsWith(datos + u'/');
}

FrmBases::~FrmBases() {
    try {
        Cerrar();
    } catch (const std::exception &) {
        // Nobody is left to be told: the files stay as the last commit left them.
    }
}

void FrmBases::AlAbrirse(std::function<void(const ResultadoApertura &)> avisar) {
    alAbrirse_ = std::move(avisar);
}

void FrmBases::AlDanarse(std::function<void(const QString &, const QString &)> avisar) {
    alDanarse_ = std::move(avisar);
}

ResultadoApertura FrmBases::AbrirInsistiendo(std::chrono::milliseconds plazo) {
    const QDeadlineTimer fin(plazo);
    ResultadoApertura resultado = Abrir();
    while (resultado.estado == EstadoApertura::Bloqueada && !fin.hasExpired()) {
        constexpr int kMinimo = 50;
        constexpr int kMaximo = 300;
        QThread::msleep(
            static_cast<unsigned long>(QRandomGenerator::global()->bounded(kMinimo, kMaximo + 1)));
        resultado = Abrir();
    }
    return resultado;
}

void FrmBases::AbrirUsuarios() {
    if (datUsuarios.Abierto())
        return;
    if (!conexion_)
        throw ErrorDatos(errores::kSinRegistro, QStringLiteral("La tabla Usuarios no está abierta."));
    conexion_->Crear(kTablaUsuarios);
    datUsuarios.Abrir(*conexion_);
}

ResultadoApertura FrmBases::Abrir() {
    ResultadoApertura resultado = AbrirArchivos();
    if (alAbrirse_)
        alAbrirse_(resultado);
    return resultado;
}

void FrmBases::NoAbrir(const QString &motivo) {
    if (alAbrirse_)
        alAbrirse_({EstadoApertura::Parcial, QString(), motivo});
}

ResultadoApertura FrmBases::AbrirArchivos() {
    Cerrar();
    ResultadoApertura resultado;
    try {
        AbrirTablas(resultado);
        if (conexion_) {
            conexion_->Bloquear();
            conexion_->AlDanarse([this](const QString &archivo, const QString &motivo) {
                if (alDanarse_)
                    alDanarse_(archivo, motivo);
            });
        }
        if (resultado.estado == EstadoApertura::Completa)
            QuitarRestos(carpeta_);
    } catch (const ErrorDatos &error) {
        Cerrar();
        const bool bloqueada = error.Numero() == errores::kBaseBloqueada;
        resultado.estado = bloqueada ? EstadoApertura::Bloqueada : EstadoApertura::Parcial;
        resultado.motivo = error.Motivo();
    }
    return resultado;
}

// Opens table by table up to the first that fails, which is told in `resultado`; throws when a file is busy.
void FrmBases::AbrirTablas(ResultadoApertura &resultado) {
    const char *abierto = "";
    for (const Tabla &tabla : kTablas) {
        const bool nuevo = std::string_view(abierto) != tabla.archivo;
        bool adjunto = !nuevo;
        try {
            if (nuevo)
                AbrirArchivo(conexion_, QDir(carpeta_).filePath(QString::fromUtf8(tabla.archivo)),
                             tabla.esquema);
            adjunto = true;
            (this->*tabla.cursor).Abrir(*conexion_);
            abierto = tabla.archivo;
        } catch (const ErrorDatos &error) {
            resultado.archivo = QString::fromUtf8(tabla.archivo);
            if (error.Numero() == errores::kBaseBloqueada)
                throw;
            if (nuevo && adjunto)
                Soltar(conexion_, tabla.esquema);
            resultado.estado = EstadoApertura::Parcial;
            resultado.motivo = error.Motivo();
            return;
        }
    }
}

void FrmBases::Cerrar() {
    std::exception_ptr fallo;
    const std::vector<Cursor *> abiertos = conexion_ ? conexion_->Cursores() : std::vector<Cursor *>();
    for (Cursor *cursor : abiertos) {
        try {
            cursor->CerrarEdicion();
        } catch (const ErrorDatos &) {
            fallo = std::current_exception();
        }
        cursor->Cerrar();
    }
    conexion_.reset();
    if (fallo)
        std::rethrow_exception(fallo);
}

namespace {

void CompactarEn(const QString &origen, const QString &destino) {
    SQLite::Database base(origen.toStdString(), SQLite::OPEN_READWRITE);
    SQLite::Statement sentencia(base, "VACUUM INTO ?");
    sentencia.bind(1, destino.toStdString());
    sentencia.exec();
    Sincronizar(destino);
}

} // namespace

void FrmBases::CompactarBase(const QString &origen, const QString &temporal) {
    QFile::remove(temporal);
    if (!QFile::exists(origen))
        throw ErrorDatos(errores::kBaseNoEncontrada,
                         QStringLiteral("No se pudo encontrar la base de datos '%1'.").arg(origen));
    try {
        CompactarEn(origen, temporal);
        if (QFile::exists(temporal)) {
            QFile::remove(origen);
            CompactarEn(temporal, origen);
        }
    } catch (const SQLite::Exception &error) {
        throw ErrorDatos(error.getErrorCode(), QString::fromUtf8(error.what()));
    }
    if (QFile::exists(origen))
        QFile::remove(temporal);
}

} // namespace tarvo
