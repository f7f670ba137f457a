#include "declarants/NuevaDeclaracion.h"

#include "core/Textos.h"
#include "core/Unico.h"
#include "declarants/cDecResumen.h"
#include "widgets/CajaTexto.h"
#include "widgets/Disposicion.h"
#include "widgets/ListaDesplegable.h"
#include "widgets/Mensajes.h"

#include <QGridLayout>
#include <QLabel>

using namespace Qt::StringLiterals;

static cDecResumen &cabecera()
{
    return unico::la<cDecResumen>();
}

NuevaDeclaracion::NuevaDeclaracion(QWidget *padre)
    : QFrame(padre)
    , m_txtejer(new CajaTexto(u"txtejer"_s, 4, CajaTexto::Cifras, this))
    , m_cmbmodelo(new ListaDesplegable(u"cmbmodelo"_s, this))
    , m_cmbperiodo(new ListaDesplegable(u"cmbperiodo"_s, this))
    , m_lblejer(nuevaEtiqueta(u"lblejer"_s, this, m_txtejer))
    , m_lblmodelo(nuevaEtiqueta(u"lblmodelo"_s, this, m_cmbmodelo))
    , m_lblperiodo(nuevaEtiqueta(u"lblperiodo"_s, this, m_cmbperiodo))
    , m_lblFaltan(nuevaEtiqueta(u"lblFaltan"_s, this))
    , m_lblGuia(nuevaEtiqueta(u"lblGuia"_s, this))
{
    setObjectName(u"fraNueva"_s);
    setFrameShape(QFrame::StyledPanel);
    m_cmbmodelo->entradas({Modelo430, Modelo480});
    m_cmbmodelo->desplegarAlEntrar();
    m_txtejer->alConfirmar = [this] { return tomarEjercicio(); };
    m_cmbmodelo->alElegir = [this](int posicion) { tomarModelo(posicion); };
    m_cmbmodelo->alRechazar = [this] { rechazar(Msj::ErrorModeloLista); };
    m_cmbperiodo->alElegir = [this](int posicion) { tomarPeriodo(posicion); };
    m_cmbperiodo->alRechazar = [this] { rechazar(Msj::ErrorPeriodoLista); };
    disponer();
}

void NuevaDeclaracion::disponer()
{
    for (auto *etiqueta : {m_lblFaltan, m_lblGuia})
        etiqueta->setWordWrap(true);
    auto *celdas = new QGridLayout(this);
    celdas->setContentsMargins(14, 10, 14, 10);
    celdas->setHorizontalSpacing(16);
    celdas->setVerticalSpacing(4);
    celdas->addWidget(m_lblejer, 0, 0);
    celdas->addWidget(m_lblmodelo, 0, 1);
    celdas->addWidget(m_lblperiodo, 0, 2);
    celdas->addWidget(m_txtejer, 1, 0);
    celdas->addWidget(m_cmbmodelo, 1, 1);
    celdas->addWidget(m_cmbperiodo, 1, 2);
    celdas->addWidget(m_lblFaltan, 0, 3, 2, 1);
    celdas->setRowMinimumHeight(2, 4);
    celdas->addWidget(m_lblGuia, 3, 0, 1, 4);
    celdas->setColumnStretch(3, 1);
    const auto ancho
        = [this](const QString &texto) { return fontMetrics().horizontalAdvance(texto) + 52; };
    m_cmbmodelo->setFixedWidth(ancho(u"0000"_s));
    m_cmbperiodo->setFixedWidth(ancho(u"SEPTIEMBRE"_s));
}

void NuevaDeclaracion::Anadir_captions()
{
    m_lblejer->setText(msj(Msj::Ejercicio));
    m_lblmodelo->setText(msj(Msj::Modelo));
    m_lblperiodo->setText(msj(Msj::Periodo));
    m_txtejer->setAccessibleName(msj(Msj::Ejercicio));
    m_cmbmodelo->setAccessibleName(msj(Msj::Modelo));
    m_cmbperiodo->setAccessibleName(msj(Msj::Periodo));
    m_lblGuia->setText(msj(Msj::GuiaNuevaDeclaracion));
    setAccessibleName(msj(Msj::MarcoNuevaDeclaracion));
}

void NuevaDeclaracion::cargarPeriodos()
{
    QStringList textos;
    if (cabecera().PERIODICIDAD() == PeriodicidadAnual) {
        textos += palabraPeriodicidad(PeriodicidadAnual);
    } else {
        for (int mes = 1; mes <= 12; ++mes)
            textos += nombreMes(mes);
    }
    m_cmbperiodo->entradas(textos);
}

void NuevaDeclaracion::PresentaFaltan()
{
    const auto meses = cabecera().MesesSinDeclarar();
    m_lblFaltan->setVisible(!meses.isEmpty());
    m_lblFaltan->setText(msj(Msj::MesesSinDeclarar, textoMeses(meses)));
}

void NuevaDeclaracion::PresentaDatos()
{
    const auto &c = cabecera();
    m_txtejer->mostrar(c.EJERCICIO() == 0 ? QString() : QString::number(c.EJERCICIO()));
    m_cmbmodelo->mostrarEntrada(m_cmbmodelo->findText(c.MODELO()));
    cargarPeriodos();
    const bool anual = c.PERIODICIDAD() == PeriodicidadAnual;
    m_cmbperiodo->mostrarEntrada(c.PERIODO() == 0 ? -1 : anual ? 0 : c.PERIODO() - 1);
    PresentaFaltan();
}

/// What is being typed in the other two fields is not lost.
void NuevaDeclaracion::alCambiarIdioma()
{
    const int posicion = m_cmbperiodo->currentIndex();
    cargarPeriodos();
    m_cmbperiodo->mostrarEntrada(posicion);
    PresentaFaltan();
}

void NuevaDeclaracion::enfocarPrimero()
{
    const auto &c = cabecera();
    QWidget *primero = m_txtejer;
    if (c.EJERCICIO() != 0 && c.MODELO().isEmpty())
        primero = m_cmbmodelo;
    else if (c.EJERCICIO() != 0 && c.PERIODO() == 0)
        primero = m_cmbperiodo;
    primero->setFocus(Qt::OtherFocusReason);
}

void NuevaDeclaracion::enfocar(qint16 codigo)
{
    QWidget *campo = m_txtejer;
    if (codigo == 2)
        campo = m_cmbperiodo;
    else if (codigo == 3)
        campo = m_cmbmodelo;
    recuperarFoco(campo);
}

/// Another exercise asks for model and period anew.
bool NuevaDeclaracion::tomarEjercicio()
{
    const qint16 ejercicio = m_txtejer->text().toShort();
    if (ejercicio != cabecera().EJERCICIO()) {
        cabecera().EJERCICIO(ejercicio);
        cabecera().MODELO({});
        cabecera().PERIODO(0);
    }
    PresentaDatos();
    return true;
}

void NuevaDeclaracion::tomarModelo(int posicion)
{
    if (posicion < 0)
        cabecera().MODELO({});
    else
        cabecera().CambiarModelo(m_cmbmodelo->itemText(posicion));
    PresentaDatos();
}

void NuevaDeclaracion::tomarPeriodo(int posicion)
{
    const bool anual = cabecera().PERIODICIDAD() == PeriodicidadAnual;
    const int periodo = posicion < 0 ? 0 : anual ? PeriodoAnual : posicion + 1;
    cabecera().PERIODO(static_cast<quint8>(periodo));
    PresentaFaltan();
}

void NuevaDeclaracion::rechazar(Msj motivo)
{
    mensajes::aviso(this, msj(Msj::TituloErrorDatosResumen), msj(motivo));
}
