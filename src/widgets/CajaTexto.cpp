#include "widgets/CajaTexto.h"

#include "core/FiltroTeclas.h"

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

QString CajaTexto::admitir(QString &antes, const QString &insertado, QString &despues)
{
    QString limpio = u""_s;
    const auto hueco = m_limite - antes.size() - despues.size();
    for (const QChar c : insertado) {
        const QChar tomado = m_filtro == Cifras ? filtrarCifra(c) : filtrarTexto(c);
        if (!tomado.isNull() && tomado != TeclaRetroceso && limpio.size() < hueco)
            limpio += tomado;
    }
    return limpio;
}
