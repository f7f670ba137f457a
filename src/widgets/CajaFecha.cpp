#include "widgets/CajaFecha.h"

#include "core/Unico.h"
#include "core/cFecha.h"

#include <QEvent>

CajaFecha::CajaFecha(const QString &nombre, QWidget *padre)
    : QLineEdit(padre)
{
    setObjectName(nombre);
    ponerMascara();
}

void CajaFecha::ponerMascara()
{
    const auto &formato = unico::la<cFecha>();
    m_idioma = formato.fecidioma();
    setInputMask(formato.Mascara());
}

void CajaFecha::mostrarFecha(qint32 yyyymmdd)
{
    setText(unico::la<cFecha>().LongToString(yyyymmdd));
}

qint32 CajaFecha::fecha() const
{
    return unico::la<cFecha>().StringToLong(text());
}

void CajaFecha::changeEvent(QEvent *evento)
{
    const auto &formato = unico::la<cFecha>();
    if (evento->type() == QEvent::LanguageChange && formato.fecidioma() != m_idioma) {
        cFecha anterior;
        anterior.fecidioma(m_idioma);
        const qint32 valor = anterior.StringToLong(text());
        ponerMascara();
        if (valor != 0)
            mostrarFecha(valor);
        else
            clear();
    }
    QLineEdit::changeEvent(evento);
}

void CajaFecha::focusInEvent(QFocusEvent *evento)
{
    QLineEdit::focusInEvent(evento);
    selectAll();
}
