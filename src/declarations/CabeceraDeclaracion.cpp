#include "declarations/CabeceraDeclaracion.h"

#include "core/Periodos.h"
#include "core/Textos.h"
#include "core/Unico.h"
#include "declarants/cDecResumen.h"
#include "widgets/CajaTexto.h"
#include "widgets/Disposicion.h"

#include <QHBoxLayout>
#include <QLabel>

using namespace Qt::StringLiterals;

static CajaTexto *caja(const QString &nombre, int cifras, QWidget *padre)
{
    auto *texto = new CajaTexto(nombre, cifras, CajaTexto::Cifras, padre);
    texto->bloquear(true);
    texto->setAlignment(Qt::AlignHCenter);
    texto->setFixedWidth(texto->fontMetrics().horizontalAdvance(u'0') * (cifras + 4));
    return texto;
}

CabeceraDeclaracion::CabeceraDeclaracion(QWidget *padre)
    : QWidget(padre)
    , m_lbldni(nuevaEtiqueta(u"lbldni"_s, this))
    , m_lblnombre(nuevaEtiqueta(u"lblnombre"_s, this))
    , m_lblejer(nuevaEtiqueta(u"lblejer"_s, this))
    , m_txtejer(caja(u"txtejer"_s, 4, this))
    , m_lblper(nuevaEtiqueta(u"lblper"_s, this))
    , m_txtper(caja(u"txtper"_s, 2, this))
    , m_lblperiodo(nuevaEtiqueta(u"lblperiodo"_s, this))
{
    QFont negrita = font();
    negrita.setBold(true);
    m_lbldni->setFont(negrita);
    m_lblnombre->setFont(negrita);
    auto *fila = new QHBoxLayout(this);
    fila->setContentsMargins(0, 0, 0, 0);
    fila->setSpacing(8);
    fila->addWidget(m_lbldni);
    fila->addWidget(m_lblnombre, 1);
    fila->addSpacing(16);
    fila->addWidget(m_lblejer);
    fila->addWidget(m_txtejer);
    fila->addSpacing(8);
    fila->addWidget(m_lblper);
    fila->addWidget(m_txtper);
    fila->addWidget(m_lblperiodo);
}

void CabeceraDeclaracion::mostrar()
{
    const auto &cabecera = unico::la<cDecResumen>();
    m_lbldni->setText(cabecera.DNI());
    m_lblnombre->setText(cabecera.NOMBRE());
    m_lblejer->setText(msj(Msj::Ejercicio));
    m_lblper->setText(msj(Msj::Periodo));
    m_txtejer->mostrar(QString::number(cabecera.EJERCICIO()));
    m_txtejer->setAccessibleName(msj(Msj::Ejercicio));
    m_txtper->mostrar(QString::number(cabecera.PERIODO()).rightJustified(2, u'0'));
    m_txtper->setAccessibleName(msj(Msj::Periodo));
    m_lblperiodo->setText(textoPeriodo(cabecera.PERIODICIDAD(), cabecera.PERIODO()));
}
