// The articles' own rules, without a window.
#include "masterdata/articuloslogica.h"

#include "testkit/dobles.h"
#include "testkit/listas.h"
#include "testkit/mundoprueba.h"

#include <map>

namespace tarvo {
namespace {

// A window that is only a record: what the list-and-detail logic has put into it.
class VistaPrueba : public VistaDetalle {
  public:
    std::map<int, QString> textos;
    std::map<int, QStringList> entradas;
    Habilitados habilitados;
    QString ficha;
    int foco = -1;
    int fila = -1;

    QString Texto(int campo) const override {
        const auto lugar = textos.find(campo);
        return lugar == textos.end() ? QString() : lugar->second;
    }
    // Those of the fields with "|" between them.
    QString Textos(std::initializer_list<int> campos) const {
        QStringList lista;
        for (const int campo : campos)
            lista << Texto(campo);
        return lista.join(u'|');
    }
    void Escribir(std::initializer_list<std::pair<const int, QString>> nuevos) {
        for (const auto &[campo, texto] : nuevos)
            textos[campo] = texto;
    }
    void Poner(int campo, const QString &texto) override { textos[campo] = texto; }
    void PonerEntradas(int campo, const QStringList &nuevas) override {
        entradas[campo] = nuevas;
        textos[campo].clear();
    }
    void EnfocarCampo(int campo) override { foco = campo; }
    int FilaActual() const override { return fila; }
    void SeleccionarFila(int nueva) override { fila = nueva; }
    void EnfocarLista() override {}
    void TitularFicha(const QString &nombre) override { ficha = nombre; }
    void Habilitar(const Habilitados &nuevos) override { habilitados = nuevos; }
    void AbrirPanel(PanelDetalle) override {}
    void CerrarPanel(PanelDetalle) override {}
};

class FiltroPrueba : public VistaFiltro {
  public:
    QStringList filtros;
    int elegido = -1;
    bool habilitado = false;

    void PonerFiltros(const QStringList &nuevos) override { filtros = nuevos; }
    void ElegirFiltro(int indice) override { elegido = indice; }
    void HabilitarFiltro(bool si) override { habilitado = si; }
    void EnfocarCatCodigo() override {}
    void EnfocarCatCategoria() override {}
};

using A = ArticulosLogica;
namespace col = columnasArticulos;

const QString kCodigoRepetido = u"El código ingresado ya existe en la base de datos."_qs;
const QString kNombreRepetido = u"El nombre del artículo ya existe en la base de datos."_qs;
const QString kModificar = u"Está seguro de querer modificar los datos del artículo seleccionado?"_qs;
const QString kEliminar = u"Está seguro de querer eliminar los datos del artículo seleccionado?"_qs;

// Two categories, IVA types with odd percentages, a supplier, and articles for each rule.
constexpr const char *kTienda = R"sql(
INSERT INTO main.Categorias(id, codigo, categoria) VALUES (3,'12','Almacén'),(4,'7','Limpieza');
INSERT INTO main.Iva(id, codigo, tipo, porcentaje) VALUES
  (1,'1','General','21'),(2,'2','Doble','100'),(3,'3','Bajo','5'),(4,'4','Reducido','10,5'),(5,'5','Raro','10.5');
INSERT INTO proveedores.Proveedores(id, codigo, nombre) VALUES (1,'P1','Mayorista');
INSERT INTO articulos.Articulos(id, codigo, nombre, idcategoria1, idtipoiva, idproveedores, pcompra, subtotal,
                                stock, stockmin) VALUES
  (1,'A1','Yerba','3','1','1','80','100','5','50'),
  (2,'A2','Azúcar','4','2','9','9','12,5','-3','2'),
  (3,'A3','Café','999','77','','x','33.33','0',''),
  (4,'A4','Fideos','','4','1','','10','1','');
)sql";

class Articulos : public testing::Test {
  protected:
    Articulos() { mundo_.datos.Ejecutar(kTienda); }

    A &Abrir() {
        logica_ = std::make_unique<A>(mundo_.frmBases(), mundo_.preguntas, vista, filtro, &anfitrion);
        logica_->Lista().Ordenar(col::kCodigo, Qt::AscendingOrder);
        logica_->Cargar();
        return *logica_;
    }
    QString Columna(int columna) const { return ColumnaDe(logica_->Lista(), columna); }
    void Elegir(int fila) {
        vista.fila = fila;
        logica_->Mostrar();
    }
    QString Guardado(const char *columna, int id) {
        return mundo_.datos.Tabla(std::string("SELECT ") + columna +
                                  " FROM articulos.Articulos WHERE id=" + std::to_string(id));
    }
    void ConfirmarCambio() {
        mundo_.preguntas.Espera(kModificar, No, Si);
        logica_->Guardar();
    }

    MundoPrueba mundo_;
    VistaPrueba vista;
    FiltroPrueba filtro;
    AnfitrionPrueba anfitrion;
    std::unique_ptr<A> logica_;
};

class ArticulosAbiertos : public Articulos {
  protected:
    void SetUp() override { Abrir(); }
};

TEST_F(Articulos, ListsPricesFromTheTruePercentageAndColoursOnlyByTheSignOfTheStock) {
    // With a point, under a comma: both can come into the tables.
    mundo_.datos.Ejecutar("UPDATE articulos.Articulos SET idtipoiva='5', stock='0.5' WHERE id=4");
    const ListaTexto &lista = Abrir().Lista();
    EXPECT_EQ(Columna(col::kSubtotal), u"$ 100,00|$ 12,50|$ 33,33|$ 10,00");
    EXPECT_EQ(Columna(col::kPVenta), u"$ 121,00|$ 25,00|$ 0,00|$ 11,05");
    EXPECT_EQ(Columna(col::kIva), u"$ 21,00|$ 12,50|$ -33,33|$ 1,05");
    EXPECT_EQ(Columna(col::kPCompra), u"$ 80,00|$ 9,00|x|$ 0,00");
    const Tono tonos[] = {Tono::Azul, Tono::Rojo, Tono::Verde, Tono::Azul};
    for (int fila = 0; fila < 4; ++fila)
        EXPECT_EQ(lista.TonoDe(fila, col::kStock), tonos[fila]) << fila;
    EXPECT_EQ(anfitrion.dicho, QList{true});
}

TEST_F(ArticulosAbiertos, ReadsThePercentageOnScreenFromTheLastThreeCharactersOfTheLabel) {
    const std::pair<const char *, const char *> casos[] = {
        {"1 - General - 21%", "$ 121,00"},    {"3 - Bajo - 5%", "$ 105,00"},
        {"2 - Doble - 100%", "$ 100,00"},     {"5 - Raro - 10.5%", "$ 100,50"},
        {"4 - Reducido - 10,5%", "$ 100,00"}, {"", "$ 100,00"}};
    for (const auto &[etiqueta, precio] : casos) {
        vista.textos[A::kTipoIVA] = QString::fromUtf8(etiqueta);
        logica_->CalcularPVenta();
        EXPECT_EQ(vista.textos[A::kPVenta], QString::fromUtf8(precio)) << etiqueta;
    }
    Elegir(1); // 100%: the list has doubled the price, the field has not
    EXPECT_EQ(vista.textos[A::kPVenta], u"$ 12,50");
}

TEST_F(Articulos, FiltersByNumberAndCountsDanglingCategoriesAsNone) {
    mundo_.datos.Ejecutar(
        "INSERT INTO articulos.Articulos(codigo, nombre, idcategoria1) VALUES ('A5','Raro','3x')");
    Abrir();
    EXPECT_EQ(filtro.filtros,
              QStringList({u"Todas las categorías"_qs, u"Sin categoría"_qs, u"12 - Almacén"_qs,
                           u"7 - Limpieza"_qs, u"Agregar nueva categoría"_qs}));
    logica_->FiltrarCategoria(2);
    EXPECT_EQ(logica_->IdFiltro(), 3);
    EXPECT_EQ(Columna(col::kCodigo), u"A1|A5");
    logica_->FiltrarCategoria(1);
    EXPECT_EQ(logica_->IdFiltro(), -1);
    EXPECT_EQ(Columna(col::kCodigo), u"A3|A4|A5");
    logica_->FiltrarCategoria(4); // the panel; the filter stays
    EXPECT_EQ(logica_->Panel(), PanelDetalle::Categoria);
    EXPECT_EQ(logica_->IdFiltro(), -1);
    logica_->CancelarCategoria();
    EXPECT_EQ(filtro.elegido, 1);
}

TEST_F(ArticulosAbiertos, ShowsAndSavesTheFiltersCategoryWhateverTheArticleHas) {
    logica_->FiltrarCategoria(1);
    EXPECT_EQ(vista.Textos({A::kCodigo, A::kIdCategoria, A::kCategoria}), u"A3|-1|Sin categoría");
    vista.textos[A::kPCompra] = u"$ 1,00"_qs;
    ConfirmarCambio();
    EXPECT_EQ(Guardado("idcategoria1", 3), u"-1");
    logica_->Actualizar();
    EXPECT_EQ(Columna(col::kCodigo), u"A3|A4");
}

TEST_F(Articulos, AFilterWithoutArticlesIsEmptyButWithinReach) {
    mundo_.datos.Ejecutar("UPDATE articulos.Articulos SET idcategoria1='3'");
    Abrir();
    logica_->FiltrarCategoria(3);
    EXPECT_EQ(logica_->Estado(), EstadoDetalle::Vacia);
    EXPECT_EQ(vista.habilitados.botones, (Botones{true, false, false, true, false, false, false}));
    EXPECT_FALSE(vista.habilitados.campos);
    EXPECT_TRUE(filtro.habilitado);
    logica_->Nuevo();
    EXPECT_FALSE(filtro.habilitado);
    EXPECT_EQ(vista.textos[A::kIdCategoria], u"4");
    logica_->Cancelar();
    EXPECT_TRUE(filtro.habilitado);
}

TEST_F(ArticulosAbiertos, DeletingTheLastRowOfAFilterKeepsTheButtonsOfBrowsing) {
    logica_->FiltrarCategoria(2); // A1 alone
    mundo_.preguntas.Espera(kEliminar, No, Si);
    logica_->Eliminar();
    EXPECT_EQ(logica_->Lista().Filas(), 0);
    const Botones viendo{true, true, true, true, false, true, true};
    EXPECT_EQ(vista.habilitados.botones, viendo);
    EXPECT_TRUE(vista.habilitados.campos);
    EXPECT_EQ(vista.textos[A::kNombre], QString());
    EXPECT_TRUE(filtro.habilitado);
    vista.Escribir({{A::kCodigo, u"x"_qs},
                    {A::kNombre, u"x"_qs},
                    {A::kPCompra, u"1"_qs},
                    {A::kSubtotal, u"1"_qs}}); // of no row
    mundo_.preguntas.Espera(kModificar, No, Si);
    mundo_.preguntas.EsperaFalla(u"El registro ya no existe."_qs);
    logica_->Guardar();
    logica_->Actualizar(); // turns the fields off, and only them
    EXPECT_EQ(vista.habilitados.botones, viendo);
    EXPECT_FALSE(vista.habilitados.campos);
    EXPECT_TRUE(filtro.habilitado);
}

// Whatever opens a panel does nothing while another one is open, nor does anything below it.
TEST_F(ArticulosAbiertos, OnePanelAtATime) {
    ASSERT_TRUE(logica_->AbrirPanel(PanelDetalle::Busqueda));
    EXPECT_EQ(vista.habilitados.botones, Botones{});
    EXPECT_TRUE(vista.habilitados.lista && !vista.habilitados.controles && !filtro.habilitado);
    logica_->FiltrarCategoria(4);
    logica_->FiltrarCategoria(2);
    logica_->Nuevo();
    logica_->Eliminar();
    EXPECT_EQ(logica_->Panel(), PanelDetalle::Busqueda);
    EXPECT_EQ(logica_->Lista().Filas(), 4);
    logica_->CerrarPanel();
    EXPECT_TRUE(vista.habilitados.controles && filtro.habilitado);

    logica_->FiltrarCategoria(4);
    EXPECT_FALSE(logica_->AbrirPanel(PanelDetalle::Busqueda));
    EXPECT_FALSE(vista.habilitados.lista || filtro.habilitado);
    logica_->CancelarCategoria();
    logica_->Nuevo();
    logica_->FiltrarCategoria(4);
    EXPECT_EQ(logica_->Panel(), PanelDetalle::Ninguno);
    ASSERT_TRUE(logica_->AbrirPanel(PanelDetalle::Busqueda));
    logica_->CerrarPanel();
    EXPECT_FALSE(vista.habilitados.lista || filtro.habilitado) << "a new article keeps the list shut";
}

TEST_F(Articulos, MarksTheRowOfTheFieldsWhileAnotherOneIsSelected) {
    ListaTexto &lista = Abrir().Lista();
    const auto marcadas = [&] {
        QString filas;
        for (int fila = 0; fila < lista.Filas(); ++fila)
            if (lista.index(fila, 0).data(ListaTexto::kRolSenalada).toBool())
                filas += lista.Celda(fila, 0);
        return filas;
    };
    EXPECT_EQ(marcadas(), QString());
    logica_->Buscar(u"café"_qs, {false, true});
    EXPECT_EQ(marcadas(), u"A1");
    EXPECT_TRUE(vista.ficha.startsWith(u"A1 · ")) << qPrintable(vista.ficha);
    EXPECT_EQ(lista.index(0, 3).data(Qt::AccessibleDescriptionRole).toString(),
              u"Los campos muestran los datos de esta fila");
    lista.Ordenar(col::kCodigo, Qt::DescendingOrder);
    EXPECT_EQ(marcadas(), u"A1") << "it goes where its row goes";
    logica_->Mostrar();
    EXPECT_EQ(marcadas(), QString());
    EXPECT_EQ(vista.ficha, QString());
}

TEST_F(ArticulosAbiertos, ATableThatCannotBeReadLeavesTheWindowEmptyAndItsNewArticleCanBeGivenUp) {
    mundo_.datos.Filas("ALTER TABLE articulos.Articulos RENAME TO Otra");
    mundo_.frmBases().datArticulos.Invalidar();
    const auto vacia = [this] {
        return logica_->Estado() == EstadoDetalle::Vacia && logica_->Lista().Filas() == 0 &&
               vista.habilitados.botones == Botones{.nuevo = true, .actualizar = true} &&
               logica_->Lista().Ilegible();
    };
    logica_->Actualizar();
    EXPECT_TRUE(vacia());
    logica_->Nuevo();
    EXPECT_TRUE(vista.habilitados.botones.cancelar);
    logica_->Cancelar();
    EXPECT_TRUE(vacia());
    mundo_.datos.Filas("ALTER TABLE articulos.Otra RENAME TO Articulos");
    logica_->Actualizar();
    EXPECT_FALSE(logica_->Lista().Ilegible());
    EXPECT_EQ(logica_->Lista().Filas(), 4);
}

TEST_F(Articulos, NothingIsComputedFromAPriceThatIsNoNumber) {
    mundo_.datos.Ejecutar("UPDATE articulos.Articulos SET subtotal='1.234,50' WHERE id=1");
    const ListaTexto &lista = Abrir().Lista();
    EXPECT_EQ(lista.Celda(0, col::kSubtotal), u"1.234,50");
    EXPECT_EQ(lista.Celda(0, col::kIva) + lista.Celda(0, col::kPVenta), QString());
    EXPECT_EQ(vista.textos[A::kSubtotal], u"1.234,50");
    EXPECT_EQ(vista.textos[A::kPVenta], QString());
}

TEST_F(ArticulosAbiertos, StoresPlainNumbersWithoutTrailingZeros) {
    const std::pair<const char *, const char *> casos[] = {
        {"$ 12,00", "12"}, {"1500", "1500"},    {"$ 12,50", "12,5"}, {"$ 12,05", "12,05"},
        {"$ 0,00", "0"},   {"$ 100,00", "100"}, {"7,50", "7,5"},     {"$ -1,10", "-1,1"}};
    for (const auto &[texto, guardado] : casos) {
        vista.textos[A::kSubtotal] = QString::fromUtf8(texto);
        ConfirmarCambio();
        EXPECT_EQ(Guardado("subtotal", 1), QString::fromUtf8(guardado)) << texto;
    }
}

TEST_F(ArticulosAbiertos, NeverWritesTheMinimumAndKeepsTheColourOfAChangedRow) {
    vista.Escribir({{A::kStockMin, u"8"_qs}, {A::kStock, u"0"_qs}});
    ConfirmarCambio();
    EXPECT_EQ(Guardado("stockmin", 1), u"50");
    EXPECT_EQ(vista.textos[A::kStockMin], u"50");
    EXPECT_EQ(Columna(col::kStock), u"0|-3|0|1");
    EXPECT_EQ(logica_->Lista().TonoDe(0, col::kStock), Tono::Azul);
    logica_->Actualizar();
    EXPECT_EQ(logica_->Lista().TonoDe(0, col::kStock), Tono::Verde);
}

TEST_F(Articulos, LooksForDuplicatesAmongTheListedRowsOnlyRowByRow) {
    mundo_.datos.Ejecutar("UPDATE articulos.Articulos SET codigo='ñandú' WHERE id=4");
    Abrir();
    const std::tuple<QString, QString, QString, int> casos[] = {
        {u"a2"_qs, u"Nuevo"_qs, kCodigoRepetido, A::kCodigo},
        {u"Z"_qs, u"CAFÉ"_qs, kNombreRepetido, A::kNombre},
        {u"ÑANDÚ"_qs, u"yerba"_qs, kNombreRepetido, A::kNombre}, // the name's row comes first
        {u"A3"_qs, u"café"_qs, kCodigoRepetido, A::kCodigo}};    // in one row the code comes first
    logica_->Nuevo();
    for (const auto &[codigo, nombre, mensaje, foco] : casos) {
        vista.Escribir({{A::kCodigo, codigo}, {A::kNombre, nombre}});
        mundo_.preguntas.EsperaMensaje(mensaje);
        logica_->Guardar();
        EXPECT_EQ(vista.foco, foco) << codigo.toStdString();
    }
    logica_->Cancelar();
    logica_->FiltrarCategoria(3); // hides A1
    logica_->Nuevo();
    vista.Escribir({{A::kCodigo, u"A1"_qs}, {A::kNombre, u"Yerba"_qs}});
    logica_->Guardar();
    EXPECT_EQ(mundo_.datos.Filas("SELECT id FROM articulos.Articulos WHERE codigo='A1'").size(), 2U);
}

TEST_F(ArticulosAbiertos, DuplicatesFollowWhatWasSavedSinceTheLastFill) {
    vista.textos[A::kCodigo] = u"B9"_qs;
    ConfirmarCambio(); // A1 is B9 now
    Elegir(1);
    vista.textos[A::kCodigo] = u"b9"_qs;
    mundo_.preguntas.Espera(kModificar, No, Si);
    mundo_.preguntas.EsperaMensaje(kCodigoRepetido);
    logica_->Guardar();
    vista.textos[A::kCodigo] = u"a1"_qs;
    ConfirmarCambio();
    EXPECT_EQ(Guardado("codigo", 2), u"a1");
}

TEST_F(ArticulosAbiertos, ASavedNewArticleBeginsTheNextOneAndSelectsTheLastRow) {
    logica_->Nuevo();
    EXPECT_EQ(vista.Textos({A::kPCompra, A::kStock, A::kTipoIVA, A::kIdTipoIVA}),
              u"$ 0,00|0|1 - General - 21%|1");
    EXPECT_FALSE(filtro.habilitado);
    vista.Escribir({{A::kCodigo, u"A0"_qs}, {A::kNombre, u"Primero"_qs}, {A::kSubtotal, u"$ 10,00"_qs}});
    logica_->CalcularPVenta();
    logica_->Guardar();
    EXPECT_TRUE(logica_->EntradaEnCurso());
    EXPECT_EQ(vista.textos[A::kCodigo], QString());
    EXPECT_EQ(Columna(col::kCodigo), u"A0|A1|A2|A3|A4");
    EXPECT_EQ(vista.fila, 4); // though the new one stands first
    EXPECT_EQ(logica_->Lista().Celda(0, col::kIva), u"$ 2,10");
    EXPECT_EQ(logica_->Lista().TonoDe(0, col::kStock), Tono::Normal);
    logica_->Cancelar();
    EXPECT_EQ(Columna(col::kId), u"5|1|2|3|4");
    EXPECT_EQ(mundo_.datos.Tabla("SELECT count(*) FROM articulos.Articulos"), u"5");
}

TEST_F(ArticulosAbiertos, ASupplierThatIsGoneShowsAsNoneAndIsSavedAsNone) {
    EXPECT_EQ(vista.textos[A::kProveedor], u"P1 - Mayorista");
    Elegir(1);
    EXPECT_EQ(vista.textos[A::kProveedor], QString());
    ConfirmarCambio();
    EXPECT_EQ(Guardado("idproveedores", 2), QString());
    EXPECT_EQ(Guardado("idtipoiva", 2), u"2");
    Elegir(2); // a dangling category or IVA type is kept
    EXPECT_EQ(vista.textos[A::kCategoria], QString());
    EXPECT_EQ(vista.textos[A::kPCompra], u"x");
    vista.textos[A::kPCompra] = u"$ 1,00"_qs;
    ConfirmarCambio();
    EXPECT_EQ(Guardado("idcategoria1", 3), u"999");
    EXPECT_EQ(Guardado("idtipoiva", 3), u"77");
}

TEST_F(ArticulosAbiertos, RefusesANewCategoryWhoseCodeBeginsAnother) {
    logica_->FiltrarCategoria(4);
    mundo_.preguntas.EsperaMensaje(u"Debe llenar el campo \"Código\""_qs);
    logica_->GuardarCategoria({}, u"Bebidas"_qs);
    mundo_.preguntas.EsperaMensaje(u"Debe llenar el campo \"Categoría\""_qs);
    logica_->GuardarCategoria(u"1"_qs, {});
    mundo_.preguntas.EsperaMensaje(kCodigoRepetido);
    logica_->GuardarCategoria(u"1"_qs, u"Bebidas"_qs); // 12 exists
    EXPECT_EQ(logica_->Panel(), PanelDetalle::Categoria);
    logica_->GuardarCategoria(u"2"_qs, u"Bebidas"_qs); // though 12 ends in it
    EXPECT_EQ(logica_->Panel(), PanelDetalle::Ninguno);
    EXPECT_EQ(filtro.filtros[4], u"2 - Bebidas");
    EXPECT_EQ(logica_->IdFiltro(), 0);
    EXPECT_EQ(mundo_.datos.Filas("SELECT id FROM main.Categorias").size(), 3U);
}

TEST_F(ArticulosAbiertos, LeavesAmountsReadWithAPointOnly) {
    const std::pair<const char *, const char *> casos[] = {
        {"", "$ 0,00"},  {"0,5", "$ 0,00"},   {"0.5", "$ 0,50"}, {"12,5", "$ 12,50"},
        {",", "$ 0,00"}, {"2.675", "$ 2,68"}, {"1,2,3", "1,2,3"}};
    for (const auto &[tecleado, mostrado] : casos) {
        vista.textos[A::kPCompra] = QString::fromUtf8(tecleado);
        logica_->SalirImporte(A::kPCompra);
        EXPECT_EQ(vista.textos[A::kPCompra], QString::fromUtf8(mostrado)) << tecleado;
    }
    for (const QString &importe : {u"12,50"_qs, u"0,50"_qs}) {
        vista.textos[A::kPCompra] = u"$ "_qs + importe;
        logica_->EntrarImporte(A::kPCompra);
        EXPECT_EQ(vista.textos[A::kPCompra], importe);
        EXPECT_TRUE(logica_->SalirImporte(A::kPCompra));
        EXPECT_EQ(vista.textos[A::kPCompra], u"$ "_qs + importe) << "nobody has typed anything";
    }
    vista.textos[A::kPCompra] = u"0,5"_qs;
    EXPECT_FALSE(logica_->SalirImporte(A::kPCompra)) << "decimals are lost";
}

TEST_F(ArticulosAbiertos, AnAmountThatIsNoNumberIsRefusedBeforeAnythingIsAsked) {
    for (const int campo : {A::kPCompra, A::kSubtotal}) {
        for (const char *texto : {"1.2.3", "$ 1,2,3", "1.234,50", "$ .", "x"}) {
            SCOPED_TRACE(texto);
            Elegir(0);
            vista.textos[campo] = QString::fromUtf8(texto);
            vista.foco = -1;
            mundo_.preguntas.EsperaMensaje(u"El importe ingresado no es un número."_qs);
            logica_->Guardar();
            EXPECT_EQ(vista.foco, campo);
        }
    }
    EXPECT_EQ(Guardado("pcompra || ' ' || subtotal", 1), u"80 100");
    vista.textos[A::kNombre].clear(); // a missing name comes first
    mundo_.preguntas.EsperaMensaje(u"Debe llenar el campo \"Nombre\""_qs);
    logica_->Guardar();
}

TEST_F(ArticulosAbiertos, ATableEmptiedBehindTheWindowIsToldOnDeletingAndSeenOnRefreshing) {
    Cursor &articulos = mundo_.frmBases().datArticulos;
    for (articulos.MoveFirst(); articulos.RecordCount() > 0; articulos.MoveFirst())
        articulos.Delete();
    mundo_.preguntas.Espera(kEliminar, No, Si);
    mundo_.preguntas.EsperaFalla(u"El registro ya no existe."_qs);
    logica_->Eliminar();
    logica_->Actualizar();
    EXPECT_EQ(logica_->Estado(), EstadoDetalle::Vacia);
    EXPECT_TRUE(filtro.habilitado); // by Refresh; a load would turn it off
}

} // namespace
} // namespace tarvo
