// The custom tax.
#include "opcionesprueba.h"

#include <QCheckBox>

namespace tarvo {
namespace {

class Personalizado : public OpcionesPrueba {
  protected:
    QCheckBox *Marca(const char *nombre) { return Control<QCheckBox>(*ventana, nombre); }
    QString EnTabla() {
        return Filas("SELECT utilizar, nombre, porcentaje, sobreiva, existeifiscal FROM Impuesto");
    }
    void EnTabla(const char *utilizar) {
        const QByteArray sql =
            QByteArray("UPDATE Impuesto SET utilizar = '") + utilizar +
            "', nombre = 'Percepción', porcentaje = '3', sobreiva = 'Si', existeifiscal = 'No'";
        Sql(sql.constData());
    }
};

TEST_F(Personalizado, ATaxInUseIsLoadedAndStoredInItsOneRow) {
    EnTabla("Si");
    Abrir();
    EXPECT_TRUE(Marca("chkUtilizar")->isChecked());
    EXPECT_EQ(Texto("txtNomImp"), u"Percepción"_qs);
    EXPECT_EQ(Texto("txtPersPorcentaje"), u"3"_qs);
    EXPECT_TRUE(Marca("chkGravarSobre")->isChecked());
    EXPECT_FALSE(Marca("chkGravarIFiscal")->isChecked());

    Teclear("txtPersPorcentaje", "4");
    Control<QAbstractSlider>(*ventana, "FSB2")->triggerAction(QAbstractSlider::SliderSingleStepSub);
    Marca("chkGravarSobre")->click();
    Marca("chkGravarIFiscal")->click();
    Pulsar("cmdGuardarPersonalizado");
    EXPECT_EQ(EnTabla(), u"Si|Percepción|5|No|Si"_qs);
}

TEST_F(Personalizado, ATaxNotInUseIsNotLoadedAndSavingStoresTheEmptyFields) {
    for (const char *utilizar : {"No", "", "si", "S"}) {
        SCOPED_TRACE(utilizar);
        EnTabla(utilizar);
        Abrir();
        EXPECT_FALSE(Marca("chkUtilizar")->isChecked());
        for (const char *nombre :
             {"txtNomImp", "txtPersPorcentaje", "FSB2", "chkGravarSobre", "chkGravarIFiscal"})
            EXPECT_FALSE(Control<QWidget>(*ventana, nombre)->isEnabled()) << nombre;
        EXPECT_TRUE(Texto("txtNomImp").isEmpty());
        EXPECT_FALSE(Marca("chkGravarSobre")->isChecked());
        CerrarTodo();
    }
    Abrir();
    Pulsar("cmdGuardarPersonalizado");
    EXPECT_EQ(EnTabla(), u"No|||No|No"_qs);
}

TEST_F(Personalizado, ATaxInUseNeedsAName) {
    EnTabla("No");
    Abrir();
    Marca("chkUtilizar")->click();
    EXPECT_TRUE(Campo("txtNomImp")->isEnabled());
    EsperaMensaje("Debe ingresar un nombre para el impuesto personalizado.");
    Pulsar("cmdGuardarPersonalizado");
    EXPECT_TRUE(Campo("txtNomImp")->hasFocus());
    EXPECT_EQ(EnTabla(), u"No|Percepción|3|Si|No"_qs);

    Teclear("txtNomImp", "Ganancias");
    Marca("chkUtilizar")->click(); // off again: the fields are stored as they stand
    EXPECT_FALSE(Campo("txtNomImp")->isEnabled());
    Pulsar("cmdGuardarPersonalizado");
    EXPECT_EQ(EnTabla(), u"No|Ganancias||No|No"_qs);
}

TEST_F(Personalizado, AWriteThatFailsIsToldOnceAndLeavesTheFields) {
    struct Caso {
        const char *sql;
        const char *mensaje;
    };
    for (const Caso &caso :
         {Caso{"CREATE TRIGGER g BEFORE UPDATE ON Impuesto BEGIN SELECT RAISE(ABORT, 'x'); END", kRechazo},
          Caso{"DELETE FROM Impuesto", "No se pudo guardar: la tabla Impuesto no tiene su registro."}}) {
        SCOPED_TRACE(caso.sql);
        Sql(caso.sql);
        Abrir();
        Marca("chkUtilizar")->setChecked(true);
        Escribir("txtNomImp", "Otro");
        EsperaMensaje(caso.mensaje, Icono::Critico);
        Pulsar("cmdGuardarPersonalizado");
        EXPECT_EQ(Texto("txtNomImp"), u"Otro"_qs);
        CerrarTodo();
        EXPECT_FALSE(Filas("SELECT nombre FROM Impuesto").contains(u"Otro"_qs));
    }
}

} // namespace
} // namespace tarvo
