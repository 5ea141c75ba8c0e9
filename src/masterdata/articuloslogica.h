// The articles: what their window does besides the list-and-detail pattern. A category filter above the list,
// the sale price derived from subtotal and IVA type, combos for category, IVA type and supplier, and the
// panel for a new category.
//
// Three rules look like mistakes and are this program's own: `stockmin` is shown and never written; under a
// filter the filter's category is shown and saved, -1 for "Sin categoría"; duplicates are looked for among
// the listed rows only.
#pragma once

#include "masterdata/etiquetas.h"
#include "masterdata/filasarticulos.h"
#include "masterdata/listadetalle.h"

namespace tarvo {

// The window's part that the pattern doesn't know: the filter combo and the fields of the new category.
class VistaFiltro {
  public:
    virtual ~VistaFiltro() = default;
    virtual void PonerFiltros(const QStringList &entradas) = 0;
    virtual void ElegirFiltro(int indice) = 0;
    virtual void HabilitarFiltro(bool habilitado) = 0;
    virtual void EnfocarCatCodigo() = 0;
    virtual void EnfocarCatCategoria() = 0;
};

class ArticulosLogica : public ListaDetalle {
  public:
    // Positions in the field table; the stored ones first, in the order of writing.
    enum Posicion {
        kCodigo,
        kCodBarras,
        kNombre,
        kDescripcion,
        kUnidad,
        kIdCategoria,
        kPCompra,
        kSubtotal,
        kIdTipoIVA,
        kIdProveedor,
        kStock,
        kStockMin,
        kPVenta,
        kCategoria,
        kTipoIVA,
        kProveedor,
        kAux,
        kCategoria2
    };

    ArticulosLogica(FrmBases &frmBases, Preguntas &preguntas, VistaDetalle &vista, VistaFiltro &vistaFiltro,
                    Anfitrion *anfitrion);

    // Fills the filter, takes its first entry and lists all articles.
    void Cargar();
    // kTodas, kSinCategoria or the `id` of a category.
    void LlenarListaArticulos(int filtro);
    void Actualizar() override;

    // An entry of the filter was chosen.
    void FiltrarCategoria(int indice);
    int IdFiltro() const { return filtro_; }

    // --- new category panel
    void GuardarCategoria(const QString &codigo, const QString &nombre);
    void CancelarCategoria();

    // --- an entry of a combo was chosen
    void ElegirCategoria();
    void ElegirTipoIVA();
    void ElegirProveedor();

    // --- a field was left, or an amount entered
    void SalirCodigo();
    void EntrarImporte(int campo);
    // What was left as it stood stays; a new amount is read with a point only ("0,50" is 0). False when
    // decimals were lost so.
    bool SalirImporte(int campo);
    void SalirCantidad(int campo);

    // The price on screen: the percentage is read from the last three characters of the type's label, up to
    // the first character that is no number and with a point as the only decimal mark. 10.5% reads 0.5, 100%
    // reads 0.
    void CalcularPVenta();

  protected:
    void AlLlenar() override;
    ContenidoLista LeerFilas() override;
    void AlMostrar() override;
    bool CamposValidos() override;
    void AlNuevo() override;
    void AlCambiarEstado() override;
    QString AMostrar(int campo, const QString &guardado) const override;
    QString AGuardar(int campo) const override;
    QString CeldaGuardada(int columna) const override;

  private:
    bool HayArticulos();
    void LlenarFiltroCategorias();
    void LlenarCategorias();
    void LlenarTiposIVA();
    void LlenarProveedores();
    void ElegirSegunId(int combo, int campoId, const Etiquetas &etiquetas);
    bool CategoriaValida(const QString &codigo, const QString &nombre);
    QString SinPrefijo(const QString &monto) const;

    VistaFiltro &vistaFiltro_;
    Etiquetas categorias_;
    Etiquetas tipos_;
    Etiquetas proveedores_;
    QStringList filtros_;
    int indiceFiltro_ = 0;
    int filtro_ = kTodas;
    QString entrado_; // what the amount field held when it was entered
};

} // namespace tarvo
