#include "dataservice/ConjuntoDeclarantes.h"

void ConjuntoDeclarantes::clear()
{
    m_bytes.clear();
    m_fines.clear();
}

void ConjuntoDeclarantes::anadir(const std::array<std::string_view, Textos> &textos)
{
    for (const std::string_view texto : textos) {
        m_bytes += texto;
        m_fines.push_back(m_bytes.size());
    }
}

std::string_view ConjuntoDeclarantes::texto(qsizetype declarante, Campo campo) const
{
    const std::size_t lugar
        = static_cast<std::size_t>(declarante) * Textos + static_cast<std::size_t>(campo) - 1;
    const std::size_t principio = lugar == 0 ? 0 : m_fines[lugar - 1];
    return std::string_view(m_bytes).substr(principio, m_fines[lugar] - principio);
}
