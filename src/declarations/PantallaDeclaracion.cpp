#include "declarations/PantallaDeclaracion.h"

#include "core/Periodos.h"
#include "core/Textos.h"
#include "core/Unico.h"
#include "declarants/cDecResumen.h"
#include "widgets/CajaTexto.h"
#include "widgets/Disposicion.h"

#include <QFrame>
#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

/// Head of every entry screen: whose return it is, and its exercise and period. Nothing in it can
/// be changed.
class PantallaDeclaracion::Cabecera : public QWidget
{
public:
    explicit Cabecera(QWidget *padre);

    /// Texts and values from the header, in the session's language.
    void mostrar();

private:
    QLabel *m_lbldni;
    QLabel *m_lblnombre;
    QLabel *m_lblejer;
    CajaTexto *m_txtejer;
    QLabel *m_lblper;
    CajaTexto *m_txtper;
    QLabel *m_lblperiodo;
};

static CajaTexto *cajaCabecera(const QString &nombre, int cifras, QWidget *padre)
{
    auto *texto = new CajaTexto(nombre, cifras, CajaTexto::Cifras, padre);
    texto->bloquear(true);
    texto->setAlignment(Qt::AlignHCenter);
    texto->setFixedWidth(texto->fontMetrics().horizontalAdvance(u'0') * (cifras + 4));
    return texto;
}

PantallaDeclaracion::Cabecera::Cabecera(QWidget *padre)
    : QWidget(padre)
    , m_lbldni(nuevaEtiqueta(u"lbldni"_s, this))
    , m_lblnombre(nuevaEtiqueta(u"lblnombre"_s, this))
    , m_lblejer(nuevaEtiqueta(u"lblejer"_s, this))
    , m_txtejer(cajaCabecera(u"txtejer"_s, 4, this))
    , m_lblper(nuevaEtiqueta(u"lblper"_s, this))
    , m_txtper(cajaCabecera(u"txtper"_s, 2, this))
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

void PantallaDeclaracion::Cabecera::mostrar()
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

PantallaDeclaracion::PantallaDeclaracion(const QString &nombre, QWidget *padre)
    : PantallaBase(nombre, padre)
    , m_cuerpo(new QVBoxLayout)
    , m_botones(new BarraBotones(u"fraBotones"_s, this))
    , m_cabecera(new Cabecera(this))
{
    m_cuerpo->setSpacing(10);
    auto *todo = new QVBoxLayout(this);
    todo->setContentsMargins(MargenPantalla);
    todo->setSpacing(10);
    todo->addWidget(m_cabecera);
    todo->addWidget(nuevaRaya(this));
    todo->addLayout(m_cuerpo, 1);
    todo->addWidget(nuevaRaya(this));
    todo->addWidget(m_botones);
}

void PantallaDeclaracion::Anadir_captions()
{
    m_cabecera->mostrar();
}

CajaImporte *PantallaDeclaracion::cajaCalculada(const QString &nombre)
{
    auto *caja = new CajaImporte(nombre, this);
    caja->bloquear(true);
    return caja;
}

CajaImporte *PantallaDeclaracion::cajaTipo(const QString &nombre)
{
    auto *caja = cajaCalculada(nombre);
    caja->setFixedWidth(caja->fontMetrics().horizontalAdvance(u"000,00 %"_s));
    return caja;
}

/// Runs a change of the record and shows it; an exception is told and counts as refused.
bool PantallaDeclaracion::tomar(const std::function<bool()> &cambio)
{
    bool tomado = false;
    procedimiento(this, [&] {
        tomado = cambio();
        m_modificada = m_modificada || tomado;
        if (tomado)
            PresentaDatos();
        else
            aviso(msj(Msj::ImporteTotalExcedido, msj(Msj::Total)));
    });
    return tomado;
}

void PantallaDeclaracion::cerrarComoCancelar()
{
    cerrarA(alCerrarMarco());
}

void PantallaDeclaracion::entregar(const QString &modo, qint32 csde)
{
    auto &cabecera = unico::la<cDecResumen>();
    if (modo == Modo::Alta)
        cabecera.CSDE(csde);
    cabecera.ENTRADA(Entrada::Vuelta);
    m_modificada = false;
    Q_EMIT datosCambiados(cabecera.CSCO());
    cerrarA(Pantalla::Resumen);
}

Pantalla PantallaDeclaracion::alCerrarMarco()
{
    auto &cabecera = unico::la<cDecResumen>();
    cabecera.ENTRADA(Entrada::Vuelta);
    cabecera.CSDE(csdeRegistro());
    return Pantalla::Resumen;
}
