// The operations of a cursor, on small tables and on one of several chunks.
#include "store/errordatos.h"
#include "testkit/datosprueba.h"

#include <gtest/gtest.h>

#include <functional>

namespace tarvo {
namespace {

using Textos = std::vector<QString>;

class PruebaCursor : public testing::Test {
  protected:
    FrmBases &ConClientes(int cuantos) {
        const std::string sql = "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<" +
                                std::to_string(cuantos) +
                                ") INSERT INTO Clientes(codigo, nombre) SELECT 'c'||i, 'n'||i FROM n";
        if (cuantos > 0)
            datos.Ejecutar(sql.c_str());
        return datos.Abrir();
    }
    // The codes of the walk.
    Textos Codigos() {
        Textos codigos;
        Recorrer(b.datClientes, [&] {
            codigos.push_back(b.camCliCodigo.Texto());
            return false;
        });
        return codigos;
    }
    // The same as the file has it.
    Textos CodigosEnDisco() {
        Textos codigos;
        for (const auto &fila : datos.Filas("SELECT codigo FROM Clientes ORDER BY id"))
            codigos.push_back(fila[0]);
        return codigos;
    }
    void Nuevo(const QString &codigo) {
        b.datClientes.AddNew();
        b.camCliCodigo = codigo;
    }

    DatosPrueba datos;
    FrmBases &b = datos.Bases();
};

Textos T(std::initializer_list<const char *> textos) {
    Textos lista;
    for (const char *texto : textos)
        lista.push_back(QString::fromUtf8(texto));
    return lista;
}

int NumeroDe(const std::function<void()> &accion) {
    try {
        accion();
    } catch (const ErrorDatos &error) {
        return error.Numero();
    }
    return 0;
}

TEST_F(PruebaCursor, AnEmptyTableHasNoCurrentRow) {
    ConClientes(0);
    EXPECT_EQ(b.datClientes.RecordCount(), 0);
    b.datClientes.MoveFirst();
    b.datClientes.MoveNext();
    b.datClientes.Refresh();
    EXPECT_FALSE(b.datClientes.HayFila());
    EXPECT_EQ(b.camCliNombre.Texto(), QString());
    EXPECT_EQ(b.camCliId.Texto(), QString());
    EXPECT_EQ(NumeroDe([&] { b.camCliNombre = QStringLiteral("x"); }), errores::kSinRegistro);
    EXPECT_EQ(NumeroDe([&] { b.datClientes.Delete(); }), errores::kSinRegistro);
}

TEST_F(PruebaCursor, AClosedCursorIsEmptyAndRefusesWrites) {
    Cursor &cursor = b.datUsuarios;
    datos.Abrir();
    EXPECT_FALSE(cursor.Abierto());
    EXPECT_EQ(cursor.RecordCount(), 0);
    cursor.MoveFirst();
    cursor.MoveNext();
    cursor.Refresh();
    EXPECT_EQ(b.camUsuCodigo.Texto(), QString());
    EXPECT_EQ(b.camUsuCodigo.Columna().Filas(), 0);
    EXPECT_NE(NumeroDe([&] { cursor.AddNew(); }), 0);
    EXPECT_NE(NumeroDe([&] { cursor.Delete(); }), 0);
    EXPECT_NE(NumeroDe([&] { b.camUsuCodigo = QStringLiteral("x"); }), 0);
}

TEST_F(PruebaCursor, MovesCommitOrDropWhatIsPending) {
    struct {
        const char *nombre;
        bool nueva;
        std::function<void(Cursor &)> accion;
        Textos esperado;
        const char *actual; // code of the row that is then current
    } const casos[] = {
        {"Refresh commits a new row", true, [](Cursor &c) { c.Refresh(); }, T({"c1", "c2", "x"}), "c1"},
        {"MoveNext commits a new row", true, [](Cursor &c) { c.MoveNext(); }, T({"c1", "c2", "x"}), ""},
        {"MoveFirst drops a new row", true, [](Cursor &c) { c.MoveFirst(); }, T({"c1", "c2"}), "c1"},
        {"AddNew drops a new row", true, [](Cursor &c) { c.AddNew(); }, T({"c1", "c2"}), ""},
        {"Delete drops a new row", true, [](Cursor &c) { c.Delete(); }, T({"c1", "c2"}), ""},
        {"Refresh commits an edit", false, [](Cursor &c) { c.Refresh(); }, T({"x", "c2"}), "x"},
        {"MoveNext commits an edit", false, [](Cursor &c) { c.MoveNext(); }, T({"x", "c2"}), "c2"},
        {"MoveFirst commits an edit", false, [](Cursor &c) { c.MoveFirst(); }, T({"x", "c2"}), "x"},
        {"AddNew commits an edit", false, [](Cursor &c) { c.AddNew(); }, T({"x", "c2"}), ""},
        {"Delete takes the edited row", false, [](Cursor &c) { c.Delete(); }, T({"c2"}), "c2"},
        {"a search commits an edit", false, [](Cursor &c) { c.IrAId(c.UltimoId()); }, T({"x", "c2"}), ""},
    };
    for (const auto &caso : casos) {
        SCOPED_TRACE(caso.nombre);
        b.Cerrar();
        datos.Ejecutar("DELETE FROM Clientes");
        ConClientes(2);
        if (caso.nueva)
            b.datClientes.AddNew();
        b.camCliCodigo = QStringLiteral("x");
        EXPECT_EQ(b.camCliCodigo.Texto(), QStringLiteral("x"));
        EXPECT_EQ(b.camCliId.Texto().isEmpty(), caso.nueva);
        EXPECT_EQ(b.datClientes.RecordCount(), 2);
        EXPECT_EQ(CodigosEnDisco(), T({"c1", "c2"}));
        caso.accion(b.datClientes);
        EXPECT_EQ(CodigosEnDisco(), caso.esperado);
        EXPECT_EQ(b.camCliCodigo.Texto().toStdString(), caso.actual);
        EXPECT_EQ(Codigos(), caso.esperado);
    }
}

TEST_F(PruebaCursor, ClosingCommitsEditsAndDropsNewRows) {
    ConClientes(2);
    b.datClientes.MoveNext();
    b.camCliNombre = QStringLiteral("editado");
    b.datProveedores.AddNew();
    b.camProNombre = QStringLiteral("a medias");
    b.Cerrar();
    EXPECT_EQ(datos.Filas("SELECT nombre FROM Clientes WHERE id=2")[0], T({"editado"}));
    EXPECT_EQ(datos.Filas("SELECT count(*) FROM Proveedores")[0], T({"0"}));
    EXPECT_EQ(b.datClientes.RecordCount(), 0);
}

TEST_F(PruebaCursor, DeleteMakesTheRowBehindTheCurrentOne) {
    ConClientes(3);
    EXPECT_EQ(b.camCliId.Columna().Celda(2), "3");
    b.datClientes.MoveNext();
    b.datClientes.Delete();
    EXPECT_EQ(b.camCliCodigo.Texto(), QStringLiteral("c3"));
    EXPECT_EQ(b.camCliId.Columna().Celda(1), "3");
    b.datClientes.Delete();
    EXPECT_FALSE(b.datClientes.HayFila());
    EXPECT_EQ(Codigos(), T({"c1"}));
    Nuevo(QStringLiteral("c4"));
    b.datClientes.Refresh();
    EXPECT_EQ(b.datClientes.UltimoId(), QStringLiteral("4")) << "the id of a deleted row came back";
    EXPECT_EQ(b.camCliId.Columna().Celda(1), "4");
    EXPECT_EQ(datos.Filas("SELECT id FROM Clientes WHERE nombre='' AND webpage=''")[0], T({"4"}));
    EXPECT_EQ(NumeroDe([&] { b.camCliId = QStringLiteral("9"); }), errores::kSinRegistro);
}

TEST_F(PruebaCursor, OnlyTheWrittenColumnsReachTheFile) {
    ConClientes(1);
    EXPECT_EQ(b.camCliNombre.Texto(), QStringLiteral("n1"));
    b.camCliTel1 = QStringLiteral("ñandú '\" 中文");
    b.camCliTel1 = b.camCliTel1.Texto() + QStringLiteral("!");
    EXPECT_EQ(b.camCliTel1.Columna().Celda(0), "") << "a pending value stood in the column";
    b.datClientes.Refresh();
    EXPECT_EQ(datos.Filas("SELECT codigo, nombre, tel1 FROM Clientes")[0],
              T({"c1", "n1", "ñandú '\" 中文!"}));
    EXPECT_TRUE(b.camCliTel1.Es(QStringLiteral("ñandú '\" 中文!")));
    EXPECT_FALSE(b.camCliTel1.Es(QStringLiteral("ñandu '\" 中文!")));
    EXPECT_TRUE(b.camCliCodigo.Es("c1"));
}

TEST_F(PruebaCursor, CellsOfOtherTypesAreReadAsText) {
    datos.Ejecutar("INSERT INTO Clientes(codigo, nombre, tel1, tel2) VALUES(NULL, 12, 1.5, x'414243')");
    datos.Abrir();
    EXPECT_EQ(b.camCliCodigo.Texto(), QString());
    EXPECT_EQ(b.camCliNombre.Texto(), QStringLiteral("12"));
    EXPECT_EQ(b.camCliTel1.Texto(), QStringLiteral("1.5"));
    EXPECT_EQ(b.camCliTel2.Texto(), QStringLiteral("ABC"));
    b.camCliCodigo = QStringLiteral("c");
    b.datClientes.Refresh();
    EXPECT_EQ(b.camCliCodigo.Texto(), QStringLiteral("c"));
}

TEST_F(PruebaCursor, AWalkFindsRowsOnBothSidesOfAChunkBorder) {
    ConClientes(4098);
    b.datClientes.Cargar({&b.camCliNombre, &b.camCliId, &b.camCliNombre}); // the codes come later, alone
    EXPECT_EQ(b.camCliNombre.Columna().Celda(4097), "n4098");
    for (const int fila : {1, 4095, 4096, 4097, 4098}) {
        const QString codigo = QStringLiteral("c%1").arg(fila);
        EXPECT_TRUE(Recorrer(b.datClientes, [&] { return b.camCliCodigo.Es(codigo); }));
        EXPECT_EQ(b.camCliId.Texto(), QString::number(fila));
        b.camCliNombre = QStringLiteral("marcado");
        b.datClientes.Refresh();
    }
    EXPECT_FALSE(Recorrer(b.datClientes, [&] { return b.camCliCodigo.Es("c4099"); }));
    EXPECT_FALSE(b.datClientes.HayFila());
    const auto marcados = datos.Filas("SELECT group_concat(id) FROM Clientes WHERE nombre='marcado'");
    EXPECT_EQ(marcados[0], T({"1,4095,4096,4097,4098"}));
}

TEST_F(PruebaCursor, SeekFindsIdsInATableWithGaps) {
    datos.Ejecutar("INSERT INTO Articulos(id, nombre) VALUES(5,'a'),(6,'b'),(9,'c'),(1000,'d'),(1001,'e')");
    datos.Abrir();
    Cursor &cursor = b.datArticulos;
    EXPECT_EQ(NumeroDe([&] { cursor.Seek(QStringLiteral("="), QStringLiteral("5")); }), errores::kIndice);
    EXPECT_EQ(NumeroDe([&] { cursor.Index(QStringLiteral("primarykey ")); }), errores::kIndice);
    EXPECT_EQ(NumeroDe([&] { b.datClientes.Index(QString()); }), errores::kIndice) << "it has none";
    EXPECT_EQ(NumeroDe([&] { b.datProveedores.Index(QStringLiteral("primarykey")); }), errores::kIndice);
    b.datProveedores.Index(QStringLiteral("primarykey ")); // with a blank
    cursor.Index(QStringLiteral("primarykey"));
    const auto buscar = [&](const char *id) {
        return cursor.Seek(QStringLiteral("="), QString::fromUtf8(id)) ? b.camArtNombre.Texto().toStdString()
                                                                       : "-";
    };
    for (const auto &[id, nombre] :
         {std::pair{"5", "a"}, {"6", "b"}, {"9", "c"}, {"1000", "d"}, {"1001", "e"}})
        EXPECT_EQ(buscar(id), nombre);
    for (const char *id :
         {"", "0", "-1", "7", "8", "10", "999", "1002", "abc", " 9", "09", "99999999999999999999"}) {
        EXPECT_EQ(buscar(id), "-") << id;
        EXPECT_FALSE(cursor.HayFila()) << id;
    }
    buscar("9");
    cursor.Delete();
    EXPECT_EQ(b.camArtNombre.Texto(), QStringLiteral("d"));
    EXPECT_EQ(buscar("9"), "-");
    EXPECT_EQ(buscar("1001"), "e");
    cursor.AddNew();
    b.camArtNombre = QStringLiteral("f");
    cursor.Refresh();
    EXPECT_EQ(buscar("1002"), "f");
}

} // namespace
} // namespace tarvo
