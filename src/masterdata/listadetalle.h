// The list-and-detail pattern, once for the program: a list of the rows of a table above the fields of the
// selected row, with buttons for a new row, save, delete, refresh, cancel, search and print.
//
// A window or options panel brings data (ReglasDetalle: its fields, list columns and texts) and, by deriving,
// its exceptions. What is on screen lies behind VistaDetalle, so that everything here runs without a window.
//
// The fields belong to the row that was shown last, whatever row of the list a search has selected since:
// save and delete act on that row, and the list marks it while another one is selected. What can be used
// follows from the state alone: rows or none, a new row or not, a panel above or not. A new row is begun in
// the table only when it is saved, so nothing that refreshes the table in the meantime can store it half
// done.
#pragma once

#include "desktop/buscador.h"
#include "desktop/listatexto.h"
#include "desktop/preguntas.h"
#include "masterdata/indicetextos.h"
#include "masterdata/vistadetalle.h"
#include "store/cursor.h"

#include <functional>
#include <optional>

namespace tarvo {

class Anfitrion;
class FrmBases;
class Preguntas;

// A field on screen and the column that it stands for. Fields are written in the order of their table.
struct CampoDetalle {
    const char *control;      // objectName
    Campo *campo = nullptr;   // null: only on screen (a combo, a computed price)
    QString requerido{};      // name in the message when it is empty on saving; empty: not required
    QString inicial{};        // text in a new row
    bool soloMostrar = false; // shown from the table and never written
};

// The first field that must be filled and is empty; `textos` has one for each of `campos`.
std::optional<int> RequeridoVacio(const std::vector<CampoDetalle> &campos, const QStringList &textos);

// A column of the list and the table column that fills it; null when it is computed.
struct ColumnaDetalle {
    ColumnaLista lista;
    Campo *campo = nullptr;
};

// Two rows of the list may not share the text of this column, case ignored.
struct PruebaDuplicado {
    int columna = 0; // of the list
    int campo = 0;   // its field, which gets the focus
    QString mensaje;
};

struct ReglasDetalle {
    Cursor &cursor;
    Campo &id;
    std::vector<CampoDetalle> campos{};
    std::vector<ColumnaDetalle> columnas{};    // the one of `id` is the hidden key of the row
    std::vector<const Campo *> apoyo{};        // read with the columns, for what is computed from them
    std::vector<int> columnasBusqueda{};       // column of chkBuscarPor(0), (1), ...
    std::vector<PruebaDuplicado> duplicados{}; // tested together, row by row
    QString indice{};                          // named for Seek; empty: the table has none
    QString preguntaModificar{};
    QString preguntaEliminar{};
    Respuesta preseleccionada = Respuesta::No; // of the two questions before
    QString preguntaCerrar{};                  // when the program closes during a new entry
    QString avisoUltimaFila{};                 // told instead of deleting the only row; empty: it can go
    bool vaciaApagaBusqueda = false;           // an empty list turns search and print off; else they stay
    bool nuevoTrasGuardar = false;             // a saved new row begins another one
    bool rellenarAlGuardar = false;            // every save fills the list again
    bool enfocarAlLlenar = false;
    bool enfocarTrasModificar = false;  // a saved change gives the list the focus; else it stays
    bool eliminarApagaExportar = false; // until the fill after it finds rows
    bool callarErrores = true;          // a fill that fails says nothing
};

enum class EstadoDetalle { Vacia, Viendo, Nueva };

class ListaDetalle {
  public:
    // `anfitrion` learns when the list can be exported; null for a list that can't.
    ListaDetalle(FrmBases &frmBases, Preguntas &preguntas, VistaDetalle &vista, ReglasDetalle reglas,
                 Anfitrion *anfitrion = nullptr);
    virtual ~ListaDetalle();
    ListaDetalle(const ListaDetalle &) = delete;
    ListaDetalle &operator=(const ListaDetalle &) = delete;

    // --- what the buttons do. Nothing happens while the button of that name is off.
    void Nuevo();
    // Tests required fields, asks before a change, tests duplicates, writes; tells the operator what is
    // wrong. A write that the disk refuses leaves fields and state as they are.
    void Guardar();
    void Eliminar();
    void Cancelar();
    virtual void Actualizar();
    // Opens a panel above the window; false when one is open already, and for what a new row or an empty list
    // doesn't allow.
    bool AbrirPanel(PanelDetalle panel);
    void CerrarPanel();
    PanelDetalle Panel() const { return panel_; }
    // Selects the next row in which a marked column contains `texto`, without showing it in the fields. False
    // when there is none, `texto` is empty, or no column is marked (which is told).
    bool Buscar(const QString &texto, const std::vector<bool> &marcadas);

    // Reads the table into the list and shows its first row. A table that can't be read leaves no row.
    void LlenarLista();
    // Copies the selected row of the list into the fields. Without such a row in the table they stay as they
    // are.
    void Mostrar();

    EstadoDetalle Estado() const { return estado_; }
    bool EntradaEnCurso() const { return estado_ == EstadoDetalle::Nueva; }
    bool PermiteCerrarPrograma();
    // The window goes: nothing can be exported any longer.
    void AlCerrar();

    ListaTexto &Lista() { return lista_; }
    const ListaTexto &Lista() const { return lista_; }
    const ReglasDetalle &Reglas() const { return reglas_; }

  protected:
    // --- exceptions
    // A fill begins: what else comes from tables is read again.
    virtual void AlLlenar() {}
    // The rows of the table; each column as it is stored, if nothing else is said.
    virtual ContenidoLista LeerFilas();
    // The fields were filled from the current row of the table.
    virtual void AlMostrar() {}
    // What is in the fields, all required ones filled, may be saved; tells the operator what may not.
    virtual bool CamposValidos() { return true; }
    // The fields were emptied for a new row; the list is still enabled.
    virtual void AlNuevo() {}
    // The state has changed, and with it what can be used.
    virtual void AlCambiarEstado() {}
    // Text of a stored column in its field, and text of a field as it is stored.
    virtual QString AMostrar(int campo, const QString &guardado) const;
    virtual QString AGuardar(int campo) const;
    // The row is written, in the transaction that goes on.
    virtual void TrasEscribir(bool /*nueva*/) {}
    // Text of a column in the list row of what was just saved.
    virtual QString CeldaGuardada(int columna) const;

    FrmBases &frmBases() { return frmBases_; }
    const FrmBases &frmBases() const { return frmBases_; }
    Preguntas &preguntas() { return preguntas_; }
    VistaDetalle &vista() { return vista_; }
    const VistaDetalle &vista() const { return vista_; }
    // Stores what `escribir` writes (see Almacenar); `accion` and `textos` name the operation.
    bool EnTransaccion(const QString &accion, const QStringList &textos,
                       const std::function<void()> &escribir);
    // No row is shown: the fields are emptied and grey. The state says what the buttons do.
    void QuedarSinFila(EstadoDetalle estado);

  private:
    void Llenar();
    void CargarColumnas();
    bool Posicionar(const QString &id);
    void Pasar(EstadoDetalle estado);
    void Habilitar();
    Botones BotonesDelEstado() const;
    void VaciarCampos();
    void SenalarMostrada();
    void Senalar(int fila);
    bool RequeridosLlenos();
    int FilaMostrada() const;
    bool HayDuplicado(int filaPropia);
    const PruebaDuplicado *DuplicadoEn(int fila) const;
    QStringList Textos() const;
    void EscribirFila();
    void QuitarFila();
    void TrasModificar(int fila);
    void TrasAgregar();
    void ActualizarFila(int fila);
    void AgregarFila();
    void Exportar(bool posible);

    FrmBases &frmBases_;
    Preguntas &preguntas_;
    VistaDetalle &vista_;
    ReglasDetalle reglas_;
    Anfitrion *anfitrion_;
    ListaTexto lista_;
    IndiceTextos indice_;
    Buscador buscador_;
    EstadoDetalle estado_ = EstadoDetalle::Vacia;
    bool desdeVacia_ = true;   // a new row was begun in the state Vacia
    bool camposGrises_ = true; // no row is shown, in whatever state
    PanelDetalle panel_ = PanelDetalle::Ninguno;
    QString idMostrado_; // row whose columns the fields hold; empty when none
    int columnaId_ = -1;
};

} // namespace tarvo
