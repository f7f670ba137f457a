#include "printing/cImOf.h"

void cImOf::PedirOficial()
{
    m_tipoimp = u"O"_qs;
    m_copiaadm = m_copiaint = u"X"_qs;
}

void cImOf::PedirBorrador()
{
    m_tipoimp = u"B"_qs;
    m_copiaadm.clear();
    m_copiaint.clear();
}

bool cImOf::HayCopias() const
{
    return m_tipoimp == u"B" || m_copiaint == u"X" || m_copiaadm == u"X";
}
