#include "declarations/FrmDatos430.h"

#include "core/Importe.h"
#include "core/Textos.h"
#include "core/Unico.h"
#include "dataservice/Codigos.h"
#include "declarations/cDatos430.h"
#include "widgets/Disposicion.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

enum { LIQUIDACION, RECTIFICACION, TOTAL };

static cDatos430 &registro()
{
    return unico::la<cDatos430>();
}

FrmDatos430::FrmDatos430(QWidget *padre)
    : PantallaDeclaracion(u"FrmDatos430"_s, padre)
    , m_chkrect(new QCheckBox(this))
{
    crearCajas();
    disponer();
    m_cmdAceptar = m_botones->anadir(u"cmdAceptar"_s, u"PicAce"_s, Icono::Aceptar);
    m_cmdCancelar = m_botones->anadir(u"cmdCancelar"_s, u"Piccan"_s, Icono::Cancelar);
    alPulsar(m_cmdAceptar, [this] { aceptar(); });
    alPulsarSinConfirmar(m_cmdCancelar, [this] { cerrarComoCancelar(); });
    m_adelante = m_cmdAceptar;
    // what is typed is taken first: the mark stays as it is while a box refuses its text
    alPulsarSinConfirmar(m_chkrect, [this] { alMarcar(); });

    if (registro().MODO() == Modo::Consulta)
        registro().CargarDeclaracion(registro().CSDE());
    else
        registro().CalcularValores();
    Anadir_captions();
    PresentaDatos();
}

void FrmDatos430::crearCajas()
{
    m_chkrect->setObjectName(u"chkrect"_s);
    auto &r = registro();
    m_lineas[LIQUIDACION]
        = {new QLabel(this), cajaEntrada(u"txtbliq"_s, r, [](auto &d, double c) { d.BASELIQ(c); }),
           cajaTipo(u"txttliq"_s), cajaCalculada(u"txtcliq"_s)};
    m_lineas[RECTIFICACION]
        = {new QLabel(this), cajaEntrada(u"txtbrect"_s, r, [](auto &d, double c) { d.BASEREC(c); }),
           nullptr, cajaEntrada(u"txtcrect"_s, r, [](auto &d, double c) { d.CUOTAREC(c); })};
    m_lineas[TOTAL] = {new QLabel(this), cajaCalculada(u"txtbtot"_s), cajaTipo(u"txtttot"_s),
                       cajaCalculada(u"txtctot"_s)};
}

void FrmDatos430::disponer()
{
    auto *rejilla = new QGridLayout;
    rejilla->setHorizontalSpacing(12);
    rejilla->setVerticalSpacing(10);
    rejilla->setColumnStretch(4, 1);
    for (int i = 0; i < 3; ++i) {
        m_columnas[i] = new QLabel(this);
        m_columnas[i]->setAlignment(Qt::AlignRight);
        rejilla->addWidget(m_columnas[i], 0, i + 1);
    }
    for (int i = 0; i < 3; ++i) {
        const auto &linea = m_lineas[i];
        // the mark stands between the liquidation and the boxes that it opens
        const int fila = i == LIQUIDACION ? 1 : i + 2;
        rejilla->addWidget(linea.titulo, fila, 0);
        rejilla->addWidget(linea.base, fila, 1);
        if (linea.tipo)
            rejilla->addWidget(linea.tipo, fila, 2);
        rejilla->addWidget(linea.cuota, fila, 3);
    }
    rejilla->addWidget(m_chkrect, 2, 0, 1, 4);
    enlazarTab({m_lineas[LIQUIDACION].base, m_chkrect, m_lineas[RECTIFICACION].base,
                m_lineas[RECTIFICACION].cuota});
    QFont negrita = font();
    negrita.setBold(true);
    m_lineas[TOTAL].titulo->setFont(negrita);
    m_lineas[TOTAL].cuota->setFont(negrita);
    for (const int columna : {1, 3})
        rejilla->setColumnMinimumWidth(columna, m_lineas[TOTAL].cuota->sizeHint().width());
    m_cuerpo->addLayout(rejilla);
    m_cuerpo->addStretch(1);
}

void FrmDatos430::Anadir_captions()
{
    PantallaDeclaracion::Anadir_captions();
    setWindowTitle(msj(Msj::Titulo430));
    static constexpr Msj columnas[] = {Msj::BaseImponible, Msj::Tipo, Msj::Cuota};
    static constexpr Msj lineas[] = {Msj::Liquidacion, Msj::Rectificacion, Msj::Total};
    for (int i = 0; i < 3; ++i)
        m_columnas[i]->setText(msj(columnas[i]));
    for (int i = 0; i < 3; ++i) {
        const auto &linea = m_lineas[i];
        linea.titulo->setText(msj(lineas[i]));
        CajaImporte *const cajas[] = {linea.base, linea.tipo, linea.cuota};
        for (int j = 0; j < 3; ++j)
            if (cajas[j])
                cajas[j]->setAccessibleName(msj(lineas[i]) + u": "_s + msj(columnas[j]));
    }
    m_chkrect->setText(msj(Msj::MarcaRectificacion));
    m_chkrect->setToolTip(msj(Msj::PistaRectificacion));
    captionsAceptarCancelar(m_cmdAceptar, m_cmdCancelar);
    m_cmdAceptar->setToolTip(msj(Msj::PistaGuardarDeclaracion));
}

void FrmDatos430::PresentaDatos()
{
    const auto &r = registro();
    const bool rectifica = r.RECTIFICA() == u"X";
    const auto &[liquidacion, rectificacion, total] = m_lineas;
    liquidacion.base->mostrarImporte(r.BASELIQ());
    liquidacion.tipo->mostrar(textoTipo(r.TIPOLIQ()));
    liquidacion.cuota->mostrarImporte(r.CUOTALIQ());
    m_chkrect->setChecked(rectifica);
    rectificacion.base->mostrarImporte(r.BASEREC());
    rectificacion.cuota->mostrarImporte(r.CUOTAREC());
    rectificacion.base->setEnabled(rectifica);
    rectificacion.cuota->setEnabled(rectifica);
    total.base->mostrarImporte(r.BASETOT());
    total.tipo->mostrar(textoTipo(r.TIPOTOT()));
    total.cuota->mostrarImporte(r.CUOTATOT());
}

qint32 FrmDatos430::csdeRegistro() const
{
    return registro().CSDE();
}

void FrmDatos430::showEvent(QShowEvent *evento)
{
    PantallaDeclaracion::showEvent(evento);
    m_lineas[LIQUIDACION].base->setFocus(Qt::OtherFocusReason);
}

bool FrmDatos430::ValidarCampos()
{
    const Regla430 regla{registro().ValidarDatos430(registro().RegistroValidar())};
    if (regla == Regla430::BaseRectificada || regla == Regla430::CuotaRectificada) {
        aviso(msj(Msj::ErrorRectificacion430));
        recuperarFoco(m_lineas[RECTIFICACION].base);
    }
    return regla == Regla430::Ninguna;
}

qint32 FrmDatos430::GuardarDeclaracion()
{
    return registro().GuardarDeclaracion(registro().RegistroGuardar());
}

bool FrmDatos430::modificada() const
{
    return registro().Cambiada();
}

void FrmDatos430::alMarcar()
{
    const bool marcada = m_chkrect->isChecked();
    m_chkrect->setChecked(!marcada);
    if (!confirmarCajas())
        return;
    registro().MarcarRectificacion(marcada);
    registro().CalcularValores();
    PresentaDatos();
}

void FrmDatos430::aceptar()
{
    if (ValidarCampos())
        guardarYVolver(registro(), registro().CUOTATOT(), [this] { return GuardarDeclaracion(); });
}
