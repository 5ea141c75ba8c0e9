// The articles' rules without their window: the records that stand for it, and a shop with an article for
// each rule.
#pragma once

#include "masterdata/articuloslogica.h"

#include "testkit/dobles.h"
#include "testkit/listas.h"
#include "testkit/mundoprueba.h"

#include <map>

namespace tarvo {

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

inline const QString kModificar = u"Está seguro de querer modificar los datos del artículo seleccionado?"_qs;

// Two categories, IVA types with odd percentages, a supplier, and articles for each rule.
inline constexpr const char *kTienda = R"sql(
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

} // namespace tarvo
