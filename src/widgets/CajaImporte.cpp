#include "widgets/CajaImporte.h"

#include "core/Importe.h"
#include "widgets/Mensajes.h"
#include "widgets/PantallaBase.h"

#include <QKeyEvent>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

static constexpr int CifrasEnteras = 13;

CajaImporte::CajaImporte(const QString &nombre, QWidget *padre)
    : Caja(nombre, padre)
{
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    alConfirmar = [this] { return tomar(); };
}

bool CajaImporte::tomar()
{
    const auto leido = leerImporte(text());
    if (!leido.valido()) {
        mensajes::aviso(this, tituloDe(this), leido.motivo(text()));
        return false;
    }
    if (leido.centimos != m_importe && alCambiar && !alCambiar(leido.centimos))
        return false;
    mostrarImporte(leido.centimos);
    return true;
}

void CajaImporte::mostrarImporte(double centimos)
{
    m_importe = centimos;
    m_conPuntosNuestros = true;
    mostrar(textoCasilla(centimos));
}

QSize CajaImporte::sizeHint() const
{
    QSize tamano = Caja::sizeHint();
    tamano.setWidth(fontMetrics().horizontalAdvance(u"-9.999.999.999.999,99"_s) + 16);
    return tamano;
}

static bool puedeSerImporte(const QString &texto)
{
    static const QRegularExpression forma(u"^-?[0-9.]*(,[0-9]{0,2})?$"_s);
    const auto enteros = texto.left(texto.indexOf(u',') < 0 ? texto.size() : texto.indexOf(u','));
    const auto cifras = std::ranges::count_if(enteros, [](QChar c) { return c.isDigit(); });
    // a lone point may still turn out to be the decimal one
    return forma.match(texto).hasMatch()
        && (cifras <= CifrasEnteras
            || (enteros.count(u'.') == 1
                && leerImporte(texto).fallo != ImporteLeido::DemasiadasCifras));
}

QString CajaImporte::admitir(QString &antes, const QString &insertado, QString &despues)
{
    // grouping of the program's own would no longer fit once a digit is added or taken away
    if (m_conPuntosNuestros) {
        antes.remove(u'.');
        despues.remove(u'.');
    }
    const QString limpio = insertado.trimmed();
    if (!puedeSerImporte(antes + limpio + despues))
        return {};
    m_conPuntosNuestros = false;
    return limpio.isNull() ? u""_s : limpio;
}

void CajaImporte::keyPressEvent(QKeyEvent *evento)
{
    if (evento->text() == u"." && evento->modifiers().testFlag(Qt::KeypadModifier)) {
        QKeyEvent coma(evento->type(), Qt::Key_Comma, Qt::KeypadModifier, u","_s);
        Caja::keyPressEvent(&coma);
        return;
    }
    Caja::keyPressEvent(evento);
}
