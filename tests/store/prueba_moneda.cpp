// Money and number text under both separators and symbols of several lengths.
#include "store/moneda.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace tarvo {
namespace {

const Moneda kComa(u","_qs, u"$"_qs);
const Moneda kPunto(u"."_qs, u"Bs"_qs);
const Moneda kEuro(u","_qs, u"€"_qs);

TEST(Moneda, FormatsTextWithTwoDecimals) {
    const std::pair<const char *, QString> casos[] = {
        {"12.5", u"12,50"_qs},   {"12,5", u"12,50"_qs},   {"0", u"0,00"_qs},          {"", u"0,00"_qs},
        {"   ", u"0,00"_qs},     {" 7 ", u"7,00"_qs},     {"2.675", u"2,68"_qs},      {"1.005", u"1,01"_qs},

        {"-2,675", u"-2,68"_qs}, {"0,995", u"1,00"_qs},   {"999,995", u"1000,00"_qs}, {"-0,004", u"0,00"_qs},
        {"-0", u"0,00"_qs},      {"-0,005", u"-0,01"_qs}, {"+3", u"3,00"_qs},         {"0012,5", u"12,50"_qs},
        {",5", u"0,50"_qs},      {"5,", u"5,00"_qs}};
    for (const auto &[texto, importe] : casos) {
        EXPECT_EQ(kComa.FormatoMoneda(QString::fromUtf8(texto), true), u"$ "_qs + importe) << texto;
        EXPECT_EQ(kPunto.FormatoMoneda(QString::fromUtf8(texto), false), QString(importe).replace(u',', u'.'))
            << texto;
    }
    EXPECT_EQ(kPunto.FormatoMoneda(u"12,5"_qs, true), u"Bs 12.50");
    EXPECT_EQ(kComa.FormatoMoneda(u"2.6749999999999999999999"_qs, true), u"$ 2,67");
    EXPECT_EQ(kComa.FormatoMoneda(u"123456789012345678901234567890,125"_qs, true),
              u"$ 123456789012345678901234567890,13");
    // What is no number stays as it is.
    for (const QString &texto : {u"1.234,56"_qs, u"1.234.567"_qs, u","_qs, u"-"_qs, u"12 5"_qs, u"1e5"_qs,
                                 u"$ 12,50"_qs, u"doce"_qs, u"١٢"_qs})
        for (const Moneda &moneda : {kComa, kPunto})
            EXPECT_EQ(moneda.FormatoMoneda(texto, true), texto);
}

TEST(Moneda, AnAmountTooLargeIsNoNumber) {
    const QString nueves(100, u'9');
    EXPECT_TRUE(Moneda::EsNumero(u"-000"_qs + nueves));
    EXPECT_EQ(kComa.FormatoMoneda(nueves + u",999"_qs, false), u'1' + QString(100, u'0') + u",00"_qs);
    EXPECT_GT(kComa.Numero(nueves), 9e99);
    for (const int cifras : {101, 400, 10'000}) {
        const QString largo(cifras, u'9');
        EXPECT_FALSE(Moneda::EsNumero(largo));
        EXPECT_EQ(kComa.FormatoMoneda(largo, true), largo);
        EXPECT_EQ(kComa.Numero(largo), kComa.Numero(u"basura"_qs));
    }
}

TEST(Moneda, RoundsADoubleOnItsDecimalReading) {
    const std::pair<double, const char *> casos[] = {{2.675, "2,68"},
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
                                                     {std::nan(""), "0,00"},
                                                     {HUGE_VAL, "0,00"},
                                                     {9999999999999.99 * 1.21, "12099999999999,99"},
                                                     {111111111111111 * 1.21, "134444444444444,31"}};
    for (const auto &[valor, esperado] : casos)
        EXPECT_EQ(kComa.FormatoMoneda(valor, false).toStdString(), esperado) << valor;
    EXPECT_EQ(kComa.FormatoMoneda(1.5e20, false), u"150000000000000000000,00");
    // As its fifteen digits written out, and read back, at any size and near any half.
    std::mt19937 azar(20261123);
    const auto hasta = [&azar](int tope) { return static_cast<int>(azar() % static_cast<unsigned>(tope)); };
    for (int i = 0; i < 200'000; ++i) {
        const double mitad = (hasta(1 << (1 + hasta(30))) + 0.5) / 100;
        const double valor = (i % 2 == 0 ? mitad : -mitad) + (hasta(5) - 2) / std::pow(10, hasta(14));
        const QString cifras = QString::number(valor, 'g', 15);
        if (!Moneda::EsNumero(cifras)) // with an exponent
            continue;
        ASSERT_EQ(kPunto.FormatoMoneda(valor, false), kPunto.FormatoMoneda(cifras, false))
            << cifras.toStdString();
        ASSERT_EQ(kPunto.Numero(cifras), cifras.toDouble()) << cifras.toStdString();
    }
    EXPECT_EQ(kEuro.FormatoMoneda(3.5, true), u"€ 3,50");
}

TEST(Moneda, StripsTheSymbolByItsLength) {
    EXPECT_EQ(kComa.SinSimbolo(u"$ 12,50"_qs), u"12,50");
    EXPECT_EQ(kPunto.SinSimbolo(u"Bs 12.50"_qs), u"12.50");
    EXPECT_EQ(kEuro.SinSimbolo(std::string_view("€ 12,50")), "12,50");
    // A row written under a symbol of another length is stripped wrongly, and stays so.
    EXPECT_EQ(kPunto.SinSimbolo(std::string_view("$ 12,50")), "2,50");
    EXPECT_EQ(kComa.SinSimbolo(std::string_view("Bs 12,50")), " 12,50");
    for (const char *corto : {"", "$", "€"})
        EXPECT_EQ(kPunto.SinSimbolo(std::string_view(corto)), "");
    EXPECT_EQ(kPunto.SinSimbolo(std::string_view("\xF0\x9F\x98\x80x1")),
              "1"); // two UTF-16 units, as a QString has
    EXPECT_EQ(kPunto.SinSimbolo(QString::fromUtf8("\xF0\x9F\x98\x80x1")), u"1");
}

TEST(Moneda, ReadsNumbersInItsLocaleNeutrallyAndAsStored) {
    const std::tuple<const char *, double, double, double, double> casos[] = {
        {"12,5", 12.5, 12, 12, 12.5},
        {"12.5", 12, 12.5, 12.5, 12.5},
        {"21%", 21, 21, 21, 21},
        {"10,5%", 10.5, 10, 10, 10.5},
        {" -3", -3, -3, -3, -3},
        {"", 0, 0, 0, 0},
        {"abc", 0, 0, 0, 0},
        {",5", 0.5, 0, 0, 0.5},
        {"5,", 5, 5, 5, 5},
        {"-", 0, 0, 0, 0},
        {"7 cajas", 7, 7, 7, 7},
        {"0,1", 0.1, 0, 0, 0.1},
        {"-12,5", -12.5, -12, -12, -12.5},
        {"-12.5", -12, -12.5, -12.5, -12.5},
    };
    for (const auto &[utf8, coma, punto, neutro, guardado] : casos) {
        const QString texto = QString::fromUtf8(utf8);
        EXPECT_EQ(kComa.Numero(texto), coma) << utf8;
        EXPECT_EQ(kPunto.Numero(texto), punto) << utf8;
        EXPECT_EQ(Moneda::NumeroNeutro(texto), neutro) << utf8;
        EXPECT_EQ(Moneda::NumeroGuardado(texto), guardado) << utf8;
    }
    EXPECT_EQ(kComa.Importe(u"$ -12,50"_qs), -12.5);
    EXPECT_EQ(kComa.Importe(u"0"_qs), 0);
}

} // namespace
} // namespace tarvo
