// The custom tax.
#include "opcionesprueba.h"

namespace tarvo {
namespace {

class Personalizado : public OpcionesPrueba {
  protected:
    QCheckBox *Marca(const char *nombre) { return C<QCheckBox>(nombre); }
    QString EnTabla() {
        return Tabla("SELECT utilizar, nombre, porcentaje, sobreiva, existeifiscal FROM Impuesto");
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
    EXPECT_EQ(Texto("txtNomImp"), u"Percepción");
    EXPECT_EQ(Texto("txtPersPorcentaje"), u"3");
    EXPECT_TRUE(Marca("chkGravarSobre")->isChecked() && !Marca("chkGravarIFiscal")->isChecked());

    Teclear("txtPersPorcentaje", "4");
    C<QAbstractSlider>("FSB2")->triggerAction(QAbstractSlider::SliderSingleStepSub);
    Marca("chkGravarSobre")->click();
    Marca("chkGravarIFiscal")->click();
    Clic("cmdGuardarPersonalizado");
    EXPECT_EQ(EnTabla(), u"Si|Percepción|5|No|Si");
}

TEST_F(Personalizado, ATaxNotInUseIsNotLoadedAndSavingStoresTheEmptyFields) {
    for (const char *utilizar : {"No", "", "si", "S"}) {
        SCOPED_TRACE(utilizar);
        EnTabla(utilizar);
        Abrir();
        EXPECT_FALSE(Marca("chkUtilizar")->isChecked());
        for (const char *nombre :
             {"txtNomImp", "txtPersPorcentaje", "FSB2", "chkGravarSobre", "chkGravarIFiscal"})
            EXPECT_FALSE(Habilitado(nombre)) << nombre;
        EXPECT_TRUE(Texto("txtNomImp").isEmpty());
        EXPECT_FALSE(Marca("chkGravarSobre")->isChecked());
        CerrarTodo();
    }
    Abrir();
    Clic("cmdGuardarPersonalizado");
    EXPECT_EQ(EnTabla(), u"No|||No|No");
}

TEST_F(Personalizado, ATaxInUseNeedsAName) {
    EnTabla("No");
    Abrir();
    Marca("chkUtilizar")->click();
    EXPECT_TRUE(Habilitado("txtNomImp"));
    EsperaMensaje("Debe ingresar un nombre para el impuesto personalizado.");
    Clic("cmdGuardarPersonalizado");
    EXPECT_TRUE(Campo("txtNomImp")->hasFocus());
    EXPECT_EQ(EnTabla(), u"No|Percepción|3|Si|No");

    Teclear("txtNomImp", "Ganancias");
    Marca("chkUtilizar")->click(); // off again: the fields are stored as they stand
    EXPECT_FALSE(Habilitado("txtNomImp"));
    Clic("cmdGuardarPersonalizado");
    EXPECT_EQ(EnTabla(), u"No|Ganancias||No|No");
}

TEST_F(Personalizado, AMissingRowIsToldAndLeavesTheFields) {
    Sql("DELETE FROM Impuesto");
    Abrir();
    Marca("chkUtilizar")->setChecked(true);
    Escribir("txtNomImp", "Otro");
    EsperaFalla("No se pudo guardar: la tabla Impuesto no tiene su registro.");
    Clic("cmdGuardarPersonalizado");
    EXPECT_EQ(Texto("txtNomImp"), u"Otro");
    EXPECT_EQ(EnTabla(), QString());
}

} // namespace
} // namespace tarvo
