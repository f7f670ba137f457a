#include "declarations/Pantalla480.h"

#include "core/Textos.h"
#include "core/Unico.h"
#include "declarations/cDatos480.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

Pantalla480::Pantalla480(const QString &nombre, Msj titulo, Pantalla anterior, Pantalla siguiente,
                         QWidget *padre)
    : PantallaDeclaracion(nombre, padre)
    , m_titulo(titulo)
{
    if (anterior != Pantalla::Ninguna) {
        m_cmdanterior = m_botones->anadir(u"cmdanterior"_s, u"picant"_s, Icono::Anterior);
        alPulsar(m_cmdanterior, [this, anterior] { cerrarA(anterior); });
    }
    if (siguiente != Pantalla::Ninguna) {
        m_cmdSiguiente = m_botones->anadir(u"cmdSiguiente"_s, u"PicSig"_s, Icono::Siguiente);
        alPulsar(m_cmdSiguiente, [this, siguiente] { cerrarA(siguiente); });
    } else {
        m_cmdAceptar = m_botones->anadir(u"cmdAceptar"_s, u"PicAce"_s, Icono::Aceptar);
    }
    m_adelante = m_cmdSiguiente ? m_cmdSiguiente : m_cmdAceptar;
    m_cmdCancelar = m_botones->anadir(u"cmdCancelar"_s, u"Piccan"_s, Icono::Cancelar);
    alPulsarSinConfirmar(m_cmdCancelar, [this] { cerrarComoCancelar(); });
}

bool Pantalla480::modificada() const
{
    return registro().Cambiada();
}

QSize Pantalla480::sizeHint() const
{
    // room for the second page's rows, and for the third one's columns
    const QFontMetrics letra = fontMetrics();
    const QSize comun(letra.averageCharWidth() * 126, letra.height() * 42);
    return PantallaDeclaracion::sizeHint().expandedTo(comun);
}

cDatos480 &Pantalla480::registro()
{
    return unico::la<cDatos480>();
}

CajaImporte *Pantalla480::ponerCasilla(QGridLayout *rejilla, Casilla480 casilla, int fila,
                                       int columna)
{
    const QString nombre = controlCasilla(casilla);
    auto *caja = seRellena(casilla) ? cajaEntrada(nombre, registro(),
                                                  [casilla](cDatos480 &r, double centimos) {
                                                      r.casilla(casilla, centimos);
                                                      r.MODIFICADO(true);
                                                  })
                                    : cajaCalculada(nombre);
    ponerNumerada(rejilla, numeroCasilla(casilla), caja, fila, columna);
    return caja;
}

void Pantalla480::ponerNumerada(QGridLayout *rejilla, const QString &numero, QWidget *caja,
                                int fila, int columna)
{
    auto *etiqueta = new QLabel(numero, this);
    QFont menor = etiqueta->font();
    menor.setPointSizeF(menor.pointSizeF() * 0.85);
    etiqueta->setFont(menor);
    rejilla->addWidget(etiqueta, fila, 1 + 2 * columna, Qt::AlignRight | Qt::AlignVCenter);
    rejilla->addWidget(caja, fila, 2 + 2 * columna);
}

void Pantalla480::Anadir_captions()
{
    PantallaDeclaracion::Anadir_captions();
    setWindowTitle(msj(m_titulo));
    if (m_cmdanterior) {
        m_cmdanterior->setText(msj(Msj::BotonAnterior));
        m_cmdanterior->setToolTip(msj(Msj::PistaAnterior));
    }
    if (m_cmdSiguiente) {
        m_cmdSiguiente->setText(msj(Msj::BotonSiguiente));
        m_cmdSiguiente->setToolTip(msj(Msj::PistaSiguiente));
    }
    captionsAceptarCancelar(m_cmdAceptar, m_cmdCancelar);
    if (m_cmdAceptar)
        m_cmdAceptar->setToolTip(msj(Msj::PistaGuardarDeclaracion));
}

qint32 Pantalla480::csdeRegistro() const
{
    return registro().CSDE();
}

void Pantalla480::alConservar()
{
    registro().MODIFICADO(false);
}
