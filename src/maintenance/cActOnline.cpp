#include "maintenance/cActOnline.h"

#include "core/Servicios.h"
#include "core/Textos.h"
#include "maintenance/VersionPublicada.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

cActOnline::cActOnline()
{
    const QStringList partes = QCoreApplication::applicationVersion().split(u'.');
    for (int i = 0; i < m_progVer.size(); ++i)
        m_progVer[i] = partes.value(i);
}

void cActOnline::ObtenerURLAct()
{
    m_urlAct = servicioLectura()->URLAct();
}

void cActOnline::GuardarActOnline()
{
    servicioDatos()->GuardarActOnline(m_actOnline);
}

void cActOnline::LeerActOnline()
{
    m_actOnline = servicioDatos()->ObtenerActOnline();
}

QString cActOnline::Direccion() const
{
    return m_urlAct + u"?Programa=OSTREL DE SEGUROS&idioma="_s + elegir(u"c"_s, u"e"_s);
}

bool cActOnline::TomarRespuesta(const QByteArray &respuesta)
{
    const auto publicada = leerVersion(respuesta);
    if (!publicada)
        return false;
    m_actVer = publicada->partes;
    m_actDescripcion = publicada->descripcion;
    m_actDownloadURL = publicada->direccion;
    m_actFile = ficheroDe(publicada->direccion);
    m_comVer = versionesDistintas(m_actVer, m_progVer) ? 1 : 0;
    return true;
}
