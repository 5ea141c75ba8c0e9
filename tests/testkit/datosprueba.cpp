#include "testkit/datosprueba.h"

#include "store/conexion.h"
#include "store/plantillas.h"

namespace tarvo {

namespace {

SQLite::Database AbrirCrudo(const QString &carpeta) {
    const QDir dir(carpeta);
    SQLite::Database base(dir.filePath(u"config.mdb"_qs).toStdString(), SQLite::OPEN_READWRITE);
    for (const char *nombre : {"clientes", "proveedores", "articulos", "ventas"}) {
        SQLite::Statement adjuntar(base, std::string("ATTACH ? AS ") + nombre);
        adjuntar.bind(1, dir.filePath(QString::fromUtf8(nombre) + QLatin1String(".mdb")).toStdString());
        adjuntar.exec();
        base.exec(std::string("PRAGMA ") + nombre + ".synchronous=OFF");
    }
    base.exec("PRAGMA main.synchronous=OFF");
    return base;
}

// Made once for the whole program: making files that are safe on disk is slow.
QString Plantillas() {
    static const QTemporaryDir carpeta;
    static const bool hechas = (CrearPlantillas(carpeta.path()), true);
    EXPECT_TRUE(hechas);
    return carpeta.path();
}

std::vector<std::vector<QString>> Leer(SQLite::Database &base, const std::string &sql) {
    std::vector<std::vector<QString>> filas;
    SQLite::Statement consulta(base, sql);
    while (consulta.executeStep()) {
        std::vector<QString> &fila = filas.emplace_back();
        for (int i = 0; i < consulta.getColumnCount(); ++i)
            fila.push_back(QString::fromStdString(consulta.getColumn(i).getString()));
    }
    return filas;
}

} // namespace

DatosPrueba::DatosPrueba(Moneda moneda)
    : bases_(std::make_unique<FrmBases>(carpeta_.path(), std::move(moneda))) {
    for (const QFileInfo &plantilla : QDir(Plantillas()).entryInfoList(QDir::Files))
        QFile::copy(plantilla.filePath(), carpeta_.filePath(plantilla.fileName()));
    Ejecutar("DELETE FROM Iva; DELETE FROM Categorias; DELETE FROM Vendedores; DELETE FROM sqlite_sequence;");
}

void DatosPrueba::Ejecutar(const std::string &sql) {
    ASSERT_FALSE(bases_->conexion_) << "raw SQL needs the files closed";
    SQLite::Database base = AbrirCrudo(carpeta_.path());
    base.exec("BEGIN");
    base.exec(sql);
    base.exec("COMMIT");
}

std::vector<std::vector<QString>> DatosPrueba::Filas(const std::string &sql) {
    if (bases_->conexion_)
        return Leer(bases_->conexion_->Base(), sql);
    SQLite::Database base = AbrirCrudo(carpeta_.path());
    return Leer(base, sql);
}

QString DatosPrueba::Tabla(const std::string &sql) {
    QStringList filas;
    for (const auto &fila : Filas(sql))
        filas << QStringList(fila.begin(), fila.end()).join(u'|');
    return filas.join(u"; "_qs);
}

FrmBases &DatosPrueba::Abrir() {
    if (!bases_->conexion_) {
        const ResultadoApertura resultado = bases_->Abrir();
        EXPECT_EQ(resultado.estado, EstadoApertura::Completa) << resultado.motivo.toStdString();
    }
    return *bases_;
}

} // namespace tarvo
