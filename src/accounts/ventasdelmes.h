// The sales of one month, day by day, for the statistics.
#pragma once

#include <vector>

namespace tarvo {

class FrmBases;

// Days that the statistics show of a month, 1 to 12. February has 29 in every year.
int DiasDelMes(int mes);

struct VentasDelMes {
    std::vector<double> porDia; // from the first day on; DiasDelMes of them
    int ilegibles = 0;          // documents whose total is no amount, left out of the sums
};

// For each day of the month the sum of `total` of the cash and credit invoices of that day. Returns and
// credit notes are not taken off. A document whose date is no date belongs to no month.
VentasDelMes SumarVentasDelMes(FrmBases &frmBases, int mes, int anio);

// The values of the chart while it shows no sales: one a day of the longest month, made up once.
const std::vector<double> &ValoresDeMuestra();

} // namespace tarvo
