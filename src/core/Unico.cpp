#include "core/Unico.h"

#include <utility>
#include <vector>

namespace unico {

static std::vector<std::function<void()>> &borradores()
{
    static std::vector<std::function<void()>> lista;
    return lista;
}

void alReiniciar(std::function<void()> borrar)
{
    borradores().push_back(std::move(borrar));
}

void reiniciar()
{
    for (const auto &borrar : std::exchange(borradores(), {}))
        borrar();
}

} // namespace unico
