// The backup window: one panel copies the data into a dated folder and can empty them, the other restores.
#pragma once

#include "desktop/servicios.h"
#include "desktop/ventanas/dialogo.h"
#include "interchange/avance.h"
#include "interchange/respaldologica.h"

#include <QElapsedTimer>

#include <array>
#include <memory>

class QCheckBox;
class QLabel;
class QTimer;

namespace tarvo {

class BarraAvance;
class EntradaBloqueada;
class FiltroCampos;
class ListaTexto;
namespace Ui {
class FrmRespaldo;
}

class FrmRespaldo : public Dialogo, private Avance {
    Q_OBJECT
  public:
    explicit FrmRespaldo(const Servicios &servicios, QWidget *padre = nullptr);
    ~FrmRespaldo() override;

  public slots:
    void done(int resultado) override;

  private:
    using Casillas = std::array<QCheckBox *, kBases>;
    // What an operation moves while it runs.
    struct Marcha {
        QWidget *tarjeta;
        BarraAvance *barra;
        QLabel *aguarde;
        QLabel *detalle;
        QWidget *iniciar;
        std::array<QWidget *, 4> Partes() const; // those that are seen meanwhile only
    };

    void CrearCasillas();
    QCheckBox *NuevaCasilla(const char *nombre, std::size_t base, const QString &titulo);
    void Conectar();
    void ConectarTeclas(FiltroCampos &filtro);
    static Elegidas Marcadas(const Casillas &casillas);

    void cmdRespaldar_Click();
    void cmdRecuperar_Click();
    void cmdExaminar_Click();
    void cmdExaminarRecuperar_Click();
    void chkRespaldar_Click(std::size_t base);
    void chkVaciar_Click(std::size_t base);
    void cmdIniciar_Click();
    void cmdIniciarRecuperar_Click();
    void lstRecuperar_Click();
    void Timer_Timer();

    void MostrarPanel(bool recuperar);
    void LlenarRespaldos();
    QString RespaldoElegido() const;
    template <typename Operacion> void Trabajar(const Marcha &marcha, Operacion operacion);
    void Acabar(const Desenlace &desenlace);
    static void MostrarMarcha(const Marcha &marcha, bool visible);

    bool Sigue() override;
    void Empieza(const QString &archivo, qint64 bytes) override;
    void Hecho(qint64 bytes) override;
    void Avanza() override;
    void Respirar();

    std::unique_ptr<Ui::FrmRespaldo> ui_;
    Servicios servicios_;
    RespaldoLogica logica_;
    ListaTexto *respaldos_;
    Casillas chkRespaldar{};
    Casillas chkVaciar{};
    Casillas chkRecuperar{};
    QTimer *Timer;
    Marcha respaldo_;
    Marcha recuperacion_;
    const Marcha *marcha_ = nullptr; // of the operation that runs
    std::unique_ptr<EntradaBloqueada> bloqueo_;
    bool salir_ = false;  // leaving was asked for while an operation ran
    QString rutaListada_; // folder that the list of backups shows
    QString archivo_;
    qint64 bytes_ = 0;
    QElapsedTimer pausa_;
};

} // namespace tarvo
