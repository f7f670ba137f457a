#include "core/CEntrada.h"

#include "core/Modos.h"
#include "core/Servicios.h"
#include "core/Textos.h"
#include "core/Unico.h"
#include "core/cFecha.h"

void CEntrada::IDI(const QString &codigo)
{
    ModificarIdioma(codigo);
    m_idi = codigo;
    AplicarIdioma();
}

void CEntrada::AplicarIdioma() const
{
    fijarIdioma(m_idi == CodigoIdioma::Euskera ? Idioma::Euskera : Idioma::Castellano);
    unico::la<cFecha>().fecidioma(m_idi.isEmpty() ? QString(CodigoIdioma::Castellano) : m_idi);
}

void CEntrada::InicializarContadores()
{
    m_numdecla = servicioDatos()->NumeroDeclarantes();
}

void CEntrada::ModificarIdioma(const QString &codigo)
{
    servicioDatos()->CambiarIdioma(codigo);
}

void CEntrada::LeerIdioma()
{
    m_idi = servicioDatos()->ObtenerIdioma();
}

void CEntrada::LeerEjercicioPeriodoMinMax()
{
    Registro limites;
    servicioLectura()->DameEjerPerMinMax(limites);
    m_ejermin = limites.value(RegLimites::EJERMIN).value<qint16>();
    m_ejermax = limites.value(RegLimites::EJERMAX).value<qint16>();
    m_permin = limites.value(RegLimites::PERMIN).value<qint16>();
    m_permax = limites.value(RegLimites::PERMAX).value<qint16>();
}
