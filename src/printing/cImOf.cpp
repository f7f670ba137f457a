#include "printing/cImOf.h"

using namespace Qt::StringLiterals;

void cImOf::PedirOficial()
{
    m_tipoimp = u"O"_s;
    m_copiaadm = m_copiaint = u"X"_s;
}

void cImOf::PedirBorrador()
{
    m_tipoimp = u"B"_s;
    m_copiaadm.clear();
    m_copiaint.clear();
}

bool cImOf::HayCopias() const
{
    return m_tipoimp == u"B" || m_copiaint == u"X" || m_copiaadm == u"X";
}
