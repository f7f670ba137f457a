#include "widgets/CajaTexto.h"

#include "core/Caracteres.h"
#include "core/Textos.h"
#include "core/Unico.h"
#include "core/cFecha.h"

#include <QEvent>

using namespace Qt::StringLiterals;

static constexpr int AnchoFijo = 9;
static constexpr int AnchoMinimo = 20;

CajaTexto::CajaTexto(const QString &nombre, int limite, Filtro filtro, QWidget *padre)
    : Caja(nombre, padre)
    , m_limite(limite)
    , m_filtro(filtro)
{
    if (m_limite <= AnchoFijo)
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize CajaTexto::sizeHint() const
{
    const QChar modelo = m_filtro == Cifras ? u'0' : u'X';
    const int texto = fontMetrics().horizontalAdvance(QString(m_limite, modelo));
    return {texto + 2 * fontMetrics().averageCharWidth() + 12, Caja::sizeHint().height()};
}

QSize CajaTexto::minimumSizeHint() const
{
    return sizeHint().boundedTo(
        {fontMetrics().horizontalAdvance(QString(AnchoMinimo, u'X')), Caja::sizeHint().height()});
}

/// The character to take for `c`; pasted texts keep the accented capitals that files carry.
QChar CajaTexto::admitido(QChar c, bool pegado) const
{
    if (m_filtro == Cifras)
        return filtrarCifra(c);
    const QChar mayuscula = c.toUpper();
    return pegado && admitidoEnFichero(mayuscula) ? mayuscula : filtrarTexto(c);
}

QString CajaTexto::admitir(QString &antes, const QString &insertado, QString &despues)
{
    QString limpio = u""_s;
    QString descartados;
    for (const QChar c : insertado) {
        const QChar tomado = admitido(c, insertado.size() > 1);
        if (!tomado.isNull() && tomado != TeclaRetroceso)
            limpio += tomado;
        else if (!descartados.contains(c))
            descartados += c;
    }
    const auto hueco = std::max<qsizetype>(0, m_limite - antes.size() - despues.size());
    if (!descartados.isEmpty())
        avisarDescartado(msj(Msj::TeclaNoAdmitida, descartados));
    else if (limpio.size() > hueco)
        avisarDescartado(msj(Msj::LimiteCasilla, QString::number(m_limite)));
    return limpio.left(hueco);
}

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
