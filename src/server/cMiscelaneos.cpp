#include "server/cMiscelaneos.h"

#include "dataservice/Codigos.h"

using namespace Qt::StringLiterals;

namespace servidor {

namespace {

constexpr qint16 DosIdiomas = 1000;

QString direccionAyuda()
{
    return u"https://www.varlenda.example/ostrel/ayuda"_s;
}

} // namespace

QString cMiscelaneos::HaciendaFiscalidad()
{
    const QString castellano = u"Departamento de Hacienda y Finanzas"_s;
    const QString euskara = u"Ogasun eta Finantza Saila"_s;
    if (m_idioma == DosIdiomas)
        return euskara + u'\n' + castellano;
    return idiomaDe(m_idioma) == Idioma::Castellano ? castellano : euskara;
}

void cMiscelaneos::AccesoAyuOnline()
{
    if (m_dialogos)
        m_dialogos->abrirDireccion(direccionAyuda(), m_padre);
}

void cMiscelaneos::MostrarOnlineInfo()
{
    if (m_dialogos)
        m_dialogos->informarAsistencia(direccionAyuda(), m_padre);
}

} // namespace servidor
