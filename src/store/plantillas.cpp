#include "store/plantillas.h"

#include "store/errordatos.h"

#include <QDir>
#include <QFile>

#include <SQLiteCpp/SQLiteCpp.h>
#include <algorithm>
#include <fcntl.h>
#include <iterator>
#include <unistd.h>

namespace tarvo {

namespace {

struct Plantilla {
    const char *archivo;
    const char *sql;
};

// Columns are separated by blanks; see Esquema.
constexpr Plantilla kPlantillas[] = {
    {"config.mdb", R"(
CREATE TABLE Iva(id, codigo, tipo, porcentaje);
CREATE TABLE Impuesto(id, utilizar, nombre, porcentaje, sobreiva, existeifiscal);
CREATE TABLE Factura(id, cantlineas, rutafactura);
CREATE TABLE Categorias(id, codigo, categoria);
CREATE TABLE Categorias2(id, codigo, categoria);
CREATE TABLE Vendedores(id, codigo, nombre, documento, direccion, telefono, mail, otros);
CREATE TABLE Ticket(id, linea1, linea2, linea3, linea4, linea5, negrita1, negrita2, negrita3, negrita4, negrita5);
INSERT INTO Iva(codigo, tipo, porcentaje) VALUES
    ('1', 'General', '21'), ('2', 'Reducido', '10'), ('3', 'Superreducido', '4'), ('4', 'Exento', '0');
INSERT INTO Impuesto(utilizar, nombre, porcentaje, sobreiva, existeifiscal) VALUES('No', '', '0', 'No', 'No');
INSERT INTO Factura(cantlineas, rutafactura) VALUES('20', '');
INSERT INTO Categorias(codigo, categoria) VALUES('1', 'General');
INSERT INTO Vendedores(codigo, nombre) VALUES('1', 'Mostrador');
INSERT INTO Ticket(negrita1, negrita2, negrita3, negrita4, negrita5) VALUES('N', 'N', 'N', 'N', 'N');
)"},
    {"clientes.mdb", R"(
CREATE TABLE Clientes(id, codigo, nombre, nfiscal, ifiscal, documento, domicilio, poblacion, cpostal, provincia,
    tel1, tel2, fax, mail, webpage);
)"},
    {"proveedores.mdb", R"(
CREATE TABLE Proveedores(id, codigo, nombre, nfiscal, ifiscal, telefono, fax, direccion, email);
)"},
    {"articulos.mdb", R"(
CREATE TABLE Articulos(id, codigo, codbarras1, codbarras2, nombre, descripcion, unidad, idcategoria1, idcategoria2,
    idcategoria3, idtipoiva, idproveedores, pcompra, subtotal, stock, stockmin);
)"},
    {"ventas.mdb", R"(
CREATE TABLE Ventas(id, fecha, hora, idcliente, idoperador, idusuario, numcomp, tipo, descripcion, subtotal, iva,
    total);
)"},
};

// Gives the columns of the tables above their types: `id` is the counter, all others are text.
QString Esquema(const char *sql) {
    QString texto;
    for (QString sentencia : QString::fromUtf8(sql).split(u';')) {
        if (sentencia.contains(QLatin1String("CREATE TABLE"))) {
            sentencia.replace(u',', QLatin1String(" TEXT DEFAULT '',"))
                .replace(u')', QLatin1String(" TEXT DEFAULT '')"));
            sentencia.replace(QLatin1String("(id TEXT DEFAULT ''"),
                              QLatin1String("(id INTEGER PRIMARY KEY AUTOINCREMENT"));
        }
        texto += sentencia + u';';
    }
    return texto;
}

[[noreturn]] void SinAcceso(const QString &ruta) {
    throw ErrorDatos(errores::kAccesoRuta, QStringLiteral("No se pudo escribir en '%1'.").arg(ruta));
}

} // namespace

void Sincronizar(const QString &ruta) {
    const int archivo = ::open(QFile::encodeName(ruta).constData(), O_RDONLY | O_CLOEXEC);
    const bool bien = archivo >= 0 && ::fsync(archivo) == 0;
    if (archivo >= 0)
        ::close(archivo);
    if (!bien)
        SinAcceso(ruta);
}

QString EsquemaDe(const QString &archivo) {
    const auto *const plantilla = std::ranges::find(
        kPlantillas, archivo, [](const Plantilla &una) { return QString::fromUtf8(una.archivo); });
    Q_ASSERT(plantilla != std::end(kPlantillas));
    return Esquema(plantilla->sql);
}

void CrearPlantillas(const QString &carpeta) {
    for (const Plantilla &plantilla : kPlantillas) {
        const QString ruta = QDir(carpeta).filePath(QString::fromUtf8(plantilla.archivo));
        try {
            SQLite::Database base(ruta.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
            base.exec("BEGIN");
            base.exec(Esquema(plantilla.sql).toStdString());
            base.exec("COMMIT");
        } catch (const SQLite::Exception &) {
            SinAcceso(ruta);
        }
        Sincronizar(ruta);
    }
}

} // namespace tarvo
