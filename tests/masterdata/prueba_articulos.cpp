// What the articles' list, filter and panels hold, and what is saved and refused.
#include "masterdata/mundoarticulos.h"

namespace tarvo {
namespace {

const QString kCodigoRepetido = u"El código ingresado ya existe en la base de datos."_qs;
const QString kNombreRepetido = u"El nombre del artículo ya existe en la base de datos."_qs;
const QString kEliminar = u"Está seguro de querer eliminar los datos del artículo seleccionado?"_qs;

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
