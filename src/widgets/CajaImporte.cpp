#include "widgets/CajaImporte.h"

#include "core/Importe.h"
#include "core/Textos.h"
#include "dataservice/Codigos.h"
#include "widgets/Mensajes.h"
#include "widgets/PantallaBase.h"

#include <QKeyEvent>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

static constexpr int CifrasEnteras = 13;

CajaImporte::CajaImporte(const QString &nombre, QWidget *padre)
    : Caja(nombre, padre)
{
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    alConfirmar = [this] { return tomar(); };
}

/// The amount of "100+25,5-3": the sum of its terms, each read as an amount.
static ImporteLeido leerSuma(const QString &texto)
{
    static const QRegularExpression termino(u"(?<=[^+-])(?=[+-])"_s);
    if (texto.isEmpty())
        return {};
    ImporteLeido suma;
    for (QString parte : texto.split(termino)) {
        if (parte.startsWith(u'+'))
            parte.remove(0, 1);
        const ImporteLeido leido = leerImporte(parte);
        if (!leido.valido())
            return leido;
        if (parte.isEmpty())
            return {0, ImporteLeido::Ilegible};
        suma.centimos += leido.centimos;
    }
    if (std::abs(suma.centimos) > ImporteMaximo)
        return {0, ImporteLeido::DemasiadasCifras};
    return suma;
}

bool CajaImporte::tomar()
{
    const auto leido = leerSuma(text());
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

static bool puedeSerTermino(const QString &texto)
{
    const auto enteros = texto.left(texto.indexOf(u',') < 0 ? texto.size() : texto.indexOf(u','));
    const auto cifras = std::ranges::count_if(enteros, [](QChar c) { return c.isDigit(); });
    // a lone point may still turn out to be the decimal one
    return cifras <= CifrasEnteras
        || (enteros.count(u'.') == 1 && leerImporte(texto).fallo != ImporteLeido::DemasiadasCifras);
}

/// Whether the text is an amount, or a sum of amounts, or the beginning of one.
static bool puedeSerImporte(const QString &texto)
{
    static const QRegularExpression forma(
        u"^-?[0-9.]*(,[0-9]{0,2})?([+-][0-9.]*(,[0-9]{0,2})?)*$"_s);
    static const QRegularExpression signo(u"[+-]"_s);
    return forma.match(texto).hasMatch()
        && std::ranges::all_of(texto.split(signo), puedeSerTermino);
}

/// A pasted amount without its currency and without blanks between its groups.
static QString sinAdornos(QString pegado)
{
    static const QRegularExpression adornos(u"[\\s\u00A0\u202F]|€|EUR"_s,
                                            QRegularExpression::CaseInsensitiveOption);
    return pegado.remove(adornos);
}

QString CajaImporte::admitir(QString &antes, const QString &insertado, QString &despues)
{
    // grouping of the program's own would no longer fit once a digit is added or taken away
    if (m_conPuntosNuestros) {
        antes.remove(u'.');
        despues.remove(u'.');
    }
    const QString limpio = sinAdornos(insertado);
    if (!puedeSerImporte(antes + limpio + despues)) {
        avisarDescartado(insertado.size() > 1 ? msj(Msj::ImporteIlegible, insertado)
                                              : msj(Msj::TeclaNoAdmitida, insertado));
        return {};
    }
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
