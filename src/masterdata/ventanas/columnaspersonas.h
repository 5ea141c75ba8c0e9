// Column widths of the lists of customers and suppliers, which have the same columns.
#pragma once

namespace tarvo {

class ListaVista;

// The name keeps its width; fiscal name and id share what is left beside a phone that makes room for the
// scroll bar.
void AjustarColumnasPersonas(ListaVista &lista, int anchoTwips);

} // namespace tarvo
