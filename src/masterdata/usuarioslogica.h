// The users: name, password and category of each, kept for later use; nothing in the program asks for them.
//
// The field of the password shows a mark and never the password, which stays in a hidden field. Once the mark
// was typed over, the password must be confirmed, and what is confirmed becomes the one of record.
#pragma once

#include "masterdata/listadetalle.h"

namespace tarvo {

class UsuariosLogica : public ListaDetalle {
  public:
    // Fields in the order of their table; the names of the controls stand in ReglasUsuarios.
    enum Campos { kNombre, kCategoria, kClaveOculta, kClave, kConfirma };

    // What the window does for it besides its fields.
    struct Acciones {
        std::function<void(bool)> habilitarConfirmacion; // enabled and white, or grey
        std::function<void()> iniciarTimer1;             // which then runs LlenarLista
    };
    // The table of the users must be open.
    UsuariosLogica(FrmBases &frmBases, Preguntas &preguntas, VistaDetalle &vista, Acciones acciones);

    // The text of the password field has changed.
    void VigilarClave();
    bool PideConfirmacion() const { return pideConfirmacion_; }
    void Actualizar() override;

  protected:
    void AlLlenar() override;
    void AlMostrar() override;
    bool CamposValidos() override;
    void AlNuevo() override;
    void AlCambiarEstado() override;
    QString AMostrar(int campo, const QString &guardado) const override;
    QString AGuardar(int campo) const override;
    ContenidoLista LeerFilas() override;
    void TrasEscribir(bool nueva) override;

  private:
    void PedirConfirmacion(bool pide);
    bool Rechazar(int campo, const QString &mensaje);

    Acciones acciones_;
    bool pideConfirmacion_ = false;
};

} // namespace tarvo
