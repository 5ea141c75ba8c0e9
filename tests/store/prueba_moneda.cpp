// Money and number text under both separators and symbols of several lengths.
#include "store/moneda.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace tarvo {
namespace {

const Moneda kComa(QStringLiteral(","), QStringLiteral("$"));
const Moneda kPunto(QStringLiteral("."), QStringLiteral("Bs"));
const Moneda kEuro(QStringLiteral(","), QStringLiteral("€"));

std::string Formato(const Moneda &moneda, const QString &texto, bool conSimbolo) {
    return moneda.FormatoMoneda(texto, conSimbolo).toStdString();
}

struct CasoTexto {
    const char *texto;
    const char *coma;  // under "," and "$", with the symbol
    const char *punto; // under "." and "Bs", without it
};

TEST(Moneda, FormatsTextWithTwoDecimals) {
    const CasoTexto casos[] = {
        {"12.5", "$ 12,50", "12.50"},
        {"12,5", "$ 12,50", "12.50"},
        {"0", "$ 0,00", "0.00"},
        {"", "$ 0,00", "0.00"},
        {"   ", "$ 0,00", "0.00"},
        {" 7 ", "$ 7,00", "7.00"},
        {"2.675", "$ 2,68", "2.68"},
        {"1.005", "$ 1,01", "1.01"},
        {"2.6749999999999999999999", "$ 2,67", "2.67"},
        {"-2,675", "$ -2,68", "-2.68"},
        {"0,995", "$ 1,00", "1.00"},
        {"999,995", "$ 1000,00", "1000.00"},
        {"-0,004", "$ 0,00", "0.00"},
        {"-0", "$ 0,00", "0.00"},
        {"-0,005", "$ -0,01", "-0.01"},
        {"+3", "$ 3,00", "3.00"},
        {"0012,5", "$ 12,50", "12.50"},
        {",5", "$ 0,50", "0.50"},
        {"5,", "$ 5,00", "5.00"},
        {"123456789012345678901234567890,125", "$ 123456789012345678901234567890,13",
         "123456789012345678901234567890.13"},
        {"1.234,56", "1.234,56", "1.234,56"},
        {"1.234.567", "1.234.567", "1.234.567"},
        {",", ",", ","},
        {"-", "-", "-"},
        {"12 5", "12 5", "12 5"},
        {"1e5", "1e5", "1e5"},
        {"$ 12,50", "$ 12,50", "$ 12,50"},
        {"doce", "doce", "doce"},
        {"١٢", "١٢", "١٢"},
    };
    for (const CasoTexto &caso : casos) {
        const QString texto = QString::fromUtf8(caso.texto);
        EXPECT_EQ(Formato(kComa, texto, true), caso.coma) << caso.texto;
        EXPECT_EQ(Formato(kPunto, texto, false), caso.punto) << caso.texto;
    }
    EXPECT_EQ(Formato(kPunto, QStringLiteral("12,5"), true), "Bs 12.50");
}

TEST(Moneda, AnAmountTooLargeIsNoNumber) {
    const QString nueves(100, u'9');
    EXPECT_TRUE(Moneda::EsNumero(QStringLiteral("-000") + nueves));
    EXPECT_EQ(Formato(kComa, nueves + QStringLiteral(",999"), false), "1" + std::string(100, '0') + ",00");
    EXPECT_GT(kComa.Numero(nueves), 9e99);
    for (const int cifras : {101, 400, 10'000}) {
        const QString largo(cifras, u'9');
        EXPECT_FALSE(Moneda::EsNumero(largo));
        EXPECT_EQ(kComa.FormatoMoneda(largo, true), largo);
        EXPECT_EQ(kComa.Numero(largo), kComa.Numero(QStringLiteral("basura")));
    }
}

TEST(Moneda, RoundsADoubleOnItsDecimalReading) {
    const std::pair<double, const char *> casos[] = {
        {2.675, "2,68"},
        {1.005, "1,01"},
        {-2.675, "-2,68"},
        {0.1 + 0.2, "0,30"},
        {0.0, "0,00"},
        {-0.0, "0,00"},
        {0.004999, "0,00"},
        {0.005, "0,01"},
        {-0.001, "0,00"},
        {1e-300, "0,00"},
        {0.05, "0,05"},
        {1234567.895, "1234567,90"},
        {99999.995, "100000,00"},
        {1e15, "1000000000000000,00"},
        {1.5e20, "150000000000000000000,00"},
        {std::nan(""), "0,00"},
        {std::numeric_limits<double>::infinity(), "0,00"},
    };
    for (const auto &[valor, esperado] : casos)
        EXPECT_EQ(kComa.FormatoMoneda(valor, false).toStdString(), esperado) << valor;
    EXPECT_EQ(kEuro.FormatoMoneda(3.5, true).toStdString(), "€ 3,50");
}

TEST(Moneda, StripsTheSymbolByItsLength) {
    EXPECT_EQ(kComa.SinSimbolo(QStringLiteral("$ 12,50")), QStringLiteral("12,50"));
    EXPECT_EQ(kPunto.SinSimbolo(QStringLiteral("Bs 12.50")), QStringLiteral("12.50"));
    EXPECT_EQ(kEuro.SinSimbolo(std::string_view("€ 12,50")), "12,50");
    // A row written under a symbol of another length is stripped wrongly, and stays so.
    EXPECT_EQ(kPunto.SinSimbolo(std::string_view("$ 12,50")), "2,50");
    EXPECT_EQ(kComa.SinSimbolo(std::string_view("Bs 12,50")), " 12,50");
    for (const char *corto : {"", "$", "€"})
        EXPECT_EQ(kPunto.SinSimbolo(std::string_view(corto)), "");
    EXPECT_EQ(kPunto.SinSimbolo(std::string_view("\xF0\x9F\x98\x80x1")),
              "1"); // two UTF-16 units, as a QString has
    EXPECT_EQ(kPunto.SinSimbolo(QString::fromUtf8("\xF0\x9F\x98\x80x1")), QStringLiteral("1"));
}

TEST(Moneda, ReadsNumbersInItsLocaleAndNeutrally) {
    struct {
        const char *texto;
        double coma, punto, neutro;
    } const casos[] = {
        {"12,5", 12.5, 12, 12},  {"12.5", 12, 12.5, 12.5}, {"21%", 21, 21, 21},
        {"10,5%", 10.5, 10, 10}, {" -3", -3, -3, -3},      {"", 0, 0, 0},
        {"abc", 0, 0, 0},        {",5", 0.5, 0, 0},        {"5,", 5, 5, 5},
        {"-", 0, 0, 0},          {"7 cajas", 7, 7, 7},     {"0,1", 0.1, 0, 0},
    };
    for (const auto &caso : casos) {
        const QString texto = QString::fromUtf8(caso.texto);
        EXPECT_EQ(kComa.Numero(texto), caso.coma) << caso.texto;
        EXPECT_EQ(kPunto.Numero(texto), caso.punto) << caso.texto;
        EXPECT_EQ(Moneda::NumeroNeutro(texto), caso.neutro) << caso.texto;
    }
    EXPECT_EQ(kComa.Importe(QStringLiteral("$ -12,50")), -12.5);
    EXPECT_EQ(kComa.Importe(QStringLiteral("0")), 0);
}

} // namespace
} // namespace tarvo
