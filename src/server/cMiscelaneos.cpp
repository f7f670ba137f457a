#include "server/cMiscelaneos.h"

namespace servidor {

namespace {

constexpr qint16 DosIdiomas = 1000;

QString direccionAyuda()
{
    return QStringLiteral("https://www.varlenda.example/ostrel/ayuda");
}

} // namespace

QString cMiscelaneos::HaciendaFiscalidad()
{
    const QString castellano = QStringLiteral("Departamento de Hacienda y Finanzas");
    const QString euskara = QStringLiteral("Ogasun eta Finantza Saila");
    if (m_idioma == DosIdiomas)
        return euskara + u'\n' + castellano;
    return m_idioma == 0 ? castellano : euskara;
}

void cMiscelaneos::AccesoAyuOnline()
{
    if (m_dialogos)
        m_dialogos->abrirDireccion(direccionAyuda(), m_padre);
}

void cMiscelaneos::MostrarOnlineInfo()
{
    if (!m_dialogos)
        return;
    const QString texto = m_idioma == 0
        ? QStringLiteral("La asistencia en línea está en la dirección %1 y se abre con el "
                         "navegador. El programa no envía ningún dato suyo.")
        : QStringLiteral("Lineako laguntza %1 helbidean dago, eta nabigatzailearekin irekitzen da. "
                         "Programak ez du zure daturik bidaltzen.");
    m_dialogos->informar(texto.arg(direccionAyuda()), m_padre);
}

} // namespace servidor
