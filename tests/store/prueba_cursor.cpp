// The operations of a cursor, on small tables and on one of several chunks.
#include "testkit/archivos.h"
#include "testkit/datosprueba.h"

#include <functional>

namespace tarvo {
namespace {

class PruebaCursor : public testing::Test {
  protected:
    FrmBases &ConClientes(int cuantos) {
        if (cuantos > 0)
            datos.Ejecutar("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<" +
                           std::to_string(cuantos) +
                           ") INSERT INTO Clientes(codigo, nombre) SELECT 'c'||i, 'n'||i FROM n");
        return datos.Abrir();
    }
    // The codes of the walk.
    QString Codigos() {
        QStringList codigos;
        Recorrer(b.datClientes, [&] {
            codigos << b.camCliCodigo.Texto();
            return false;
        });
        return codigos.join(u"; "_qs);
    }
    // The same as the file has it.
    QString CodigosEnDisco() { return datos.Tabla("SELECT codigo FROM Clientes ORDER BY id"); }

    DatosPrueba datos;
    FrmBases &b = datos.Bases();
};

TEST_F(PruebaCursor, AnEmptyTableAndAClosedOneHaveNoCurrentRow) {
    ConClientes(0);
    EXPECT_TRUE(b.datClientes.Abierto() && !b.datUsuarios.Abierto());
    for (Cursor *cursor : {&b.datClientes, &b.datUsuarios}) {
        EXPECT_EQ(cursor->RecordCount(), 0);
        cursor->MoveFirst();
        cursor->MoveNext();
        cursor->Refresh();
        EXPECT_FALSE(cursor->HayFila());
    }
    EXPECT_EQ(b.camCliNombre.Texto() + b.camCliId.Texto() + b.camUsuCodigo.Texto(), QString());
    EXPECT_EQ(b.camUsuCodigo.Columna().Filas(), 0);
    EXPECT_EQ(NumeroDe([&] { b.camCliNombre = u"x"_qs; }), errores::kSinRegistro);
    EXPECT_EQ(NumeroDe([&] { b.datClientes.Delete(); }), errores::kSinRegistro);
    EXPECT_NE(NumeroDe([&] { b.datUsuarios.AddNew(); }), 0);
    EXPECT_NE(NumeroDe([&] { b.datUsuarios.Delete(); }), 0);
    EXPECT_NE(NumeroDe([&] { b.camUsuCodigo = u"x"_qs; }), 0);
}

TEST_F(PruebaCursor, MovesCommitOrDropWhatIsPending) {
    struct {
        const char *nombre;
        bool nueva;
        std::function<void(Cursor &)> accion;
        const char16_t *esperado;
        const char *actual; // code of the row that is then current
    } const casos[] = {
        {"Refresh commits a new row", true, [](Cursor &c) { c.Refresh(); }, u"c1; c2; x", "c1"},
        {"MoveNext commits a new row", true, [](Cursor &c) { c.MoveNext(); }, u"c1; c2; x", ""},
        {"MoveFirst drops a new row", true, [](Cursor &c) { c.MoveFirst(); }, u"c1; c2", "c1"},
        {"AddNew drops a new row", true, [](Cursor &c) { c.AddNew(); }, u"c1; c2", ""},
        {"Delete drops a new row", true, [](Cursor &c) { c.Delete(); }, u"c1; c2", ""},
        {"Refresh commits an edit", false, [](Cursor &c) { c.Refresh(); }, u"x; c2", "x"},
        {"MoveNext commits an edit", false, [](Cursor &c) { c.MoveNext(); }, u"x; c2", "c2"},
        {"MoveFirst commits an edit", false, [](Cursor &c) { c.MoveFirst(); }, u"x; c2", "x"},
        {"AddNew commits an edit", false, [](Cursor &c) { c.AddNew(); }, u"x; c2", ""},
        {"Delete takes the edited row", false, [](Cursor &c) { c.Delete(); }, u"c2", "c2"},
        {"a search commits an edit", false, [](Cursor &c) { c.IrAId(c.UltimoId()); }, u"x; c2", ""},
    };
    for (const auto &caso : casos) {
        SCOPED_TRACE(caso.nombre);
        b.Cerrar();
        datos.Ejecutar("DELETE FROM Clientes");
        ConClientes(2);
        if (caso.nueva)
            b.datClientes.AddNew();
        b.camCliCodigo = u"x"_qs;
        EXPECT_EQ(b.camCliCodigo.Texto(), u"x");
        EXPECT_EQ(b.camCliId.Texto().isEmpty(), caso.nueva);
        EXPECT_EQ(b.datClientes.RecordCount(), 2);
        EXPECT_EQ(CodigosEnDisco(), u"c1; c2");
        caso.accion(b.datClientes);
        EXPECT_EQ(CodigosEnDisco(), caso.esperado);
        EXPECT_EQ(b.camCliCodigo.Texto().toStdString(), caso.actual);
        EXPECT_EQ(Codigos(), caso.esperado);
    }
}

TEST_F(PruebaCursor, ClosingCommitsEditsAndDropsNewRows) {
    ConClientes(2);
    b.datClientes.MoveNext();
    b.camCliNombre = u"editado"_qs;
    b.datProveedores.AddNew();
    b.camProNombre = u"a medias"_qs;
    b.Cerrar();
    EXPECT_EQ(datos.Tabla("SELECT nombre FROM Clientes WHERE id=2"), u"editado");
    EXPECT_EQ(datos.Tabla("SELECT count(*) FROM Proveedores"), u"0");
    EXPECT_EQ(b.datClientes.RecordCount(), 0);
}

TEST_F(PruebaCursor, DeleteMakesTheRowBehindTheCurrentOne) {
    ConClientes(3);
    EXPECT_EQ(b.camCliId.Columna().Celda(2), "3");
    b.datClientes.MoveNext();
    b.datClientes.Delete();
    EXPECT_EQ(b.camCliCodigo.Texto(), u"c3");
    EXPECT_EQ(b.camCliId.Columna().Celda(1), "3");
    b.datClientes.Delete();
    EXPECT_FALSE(b.datClientes.HayFila());
    EXPECT_EQ(Codigos(), u"c1");
    b.datClientes.AddNew();
    b.camCliCodigo = u"c4"_qs;
    b.datClientes.Refresh();
    EXPECT_EQ(b.datClientes.UltimoId(), u"4") << "the id of a deleted row came back";
    EXPECT_EQ(b.camCliId.Columna().Celda(1), "4");
    EXPECT_EQ(datos.Tabla("SELECT id FROM Clientes WHERE nombre='' AND webpage=''"), u"4");
    EXPECT_EQ(NumeroDe([&] { b.camCliId = u"9"_qs; }), errores::kSinRegistro);
}

TEST_F(PruebaCursor, OnlyTheWrittenColumnsReachTheFile) {
    ConClientes(1);
    EXPECT_EQ(b.camCliNombre.Texto(), u"n1");
    b.camCliTel1 = u"ñandú '\" 中文"_qs;
    b.camCliTel1 = b.camCliTel1.Texto() + u"!"_qs;
    EXPECT_EQ(b.camCliTel1.Columna().Celda(0), "") << "a pending value stood in the column";
    b.datClientes.Refresh();
    EXPECT_EQ(datos.Tabla("SELECT codigo, nombre, tel1 FROM Clientes"), u"c1|n1|ñandú '\" 中文!");
    EXPECT_TRUE(b.camCliTel1.Es(u"ñandú '\" 中文!"_qs));
    EXPECT_FALSE(b.camCliTel1.Es(u"ñandu '\" 中文!"_qs));
    EXPECT_TRUE(b.camCliCodigo.Es("c1"));
}

TEST_F(PruebaCursor, CellsOfOtherTypesAreReadAsText) {
    datos.Ejecutar("INSERT INTO Clientes(codigo, nombre, tel1, tel2) VALUES(NULL, 12, 1.5, x'414243')");
    datos.Abrir();
    EXPECT_EQ(b.camCliCodigo.Texto(), QString());
    EXPECT_EQ(b.camCliNombre.Texto(), u"12");
    EXPECT_EQ(b.camCliTel1.Texto(), u"1.5");
    EXPECT_EQ(b.camCliTel2.Texto(), u"ABC");
    b.camCliCodigo = u"c"_qs;
    b.datClientes.Refresh();
    EXPECT_EQ(b.camCliCodigo.Texto(), u"c");
}

TEST_F(PruebaCursor, AWalkFindsRowsOnBothSidesOfAChunkBorder) {
    ConClientes(4098);
    b.datClientes.Cargar({&b.camCliNombre, &b.camCliId, &b.camCliNombre}); // the codes come later, alone
    EXPECT_EQ(b.camCliNombre.Columna().Celda(4097), "n4098");
    for (const int fila : {1, 4095, 4096, 4097, 4098}) {
        const QString codigo = u"c%1"_qs.arg(fila);
        EXPECT_TRUE(Recorrer(b.datClientes, [&] { return b.camCliCodigo.Es(codigo); }));
        EXPECT_EQ(b.camCliId.Texto(), QString::number(fila));
        b.camCliNombre = u"marcado"_qs;
        b.datClientes.Refresh();
    }
    EXPECT_FALSE(Recorrer(b.datClientes, [&] { return b.camCliCodigo.Es("c4099"); }));
    EXPECT_FALSE(b.datClientes.HayFila());
    EXPECT_EQ(datos.Tabla("SELECT group_concat(id) FROM Clientes WHERE nombre='marcado'"),
              u"1,4095,4096,4097,4098");
}

TEST_F(PruebaCursor, SeekFindsIdsInATableWithGaps) {
    datos.Ejecutar("INSERT INTO Articulos(id, nombre) VALUES(5,'a'),(6,'b'),(9,'c'),(1000,'d'),(1001,'e')");
    datos.Abrir();
    Cursor &cursor = b.datArticulos;
    EXPECT_EQ(NumeroDe([&] { cursor.Seek(u"="_qs, u"5"_qs); }), errores::kIndice);
    EXPECT_EQ(NumeroDe([&] { cursor.Index(u"primarykey "_qs); }), errores::kIndice);
    EXPECT_EQ(NumeroDe([&] { b.datClientes.Index(QString()); }), errores::kIndice) << "it has none";
    EXPECT_EQ(NumeroDe([&] { b.datProveedores.Index(u"primarykey"_qs); }), errores::kIndice);
    b.datProveedores.Index(u"primarykey "_qs); // with a blank
    cursor.Index(u"primarykey"_qs);
    const auto buscar = [&](const char *id) {
        return cursor.Seek(u"="_qs, QString::fromUtf8(id)) ? b.camArtNombre.Texto().toStdString() : "-";
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
    EXPECT_EQ(b.camArtNombre.Texto(), u"d");
    EXPECT_EQ(buscar("9"), "-");
    EXPECT_EQ(buscar("1001"), "e");
    cursor.AddNew();
    b.camArtNombre = u"f"_qs;
    cursor.Refresh();
    EXPECT_EQ(buscar("1002"), "f");
}

} // namespace
} // namespace tarvo
