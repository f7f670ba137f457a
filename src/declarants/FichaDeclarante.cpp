#include "declarants/FichaDeclarante.h"

#include "widgets/CajaTexto.h"
#include "widgets/Disposicion.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

using namespace cajas;

static constexpr int Separacion = 16;

FichaDeclarante::FichaDeclarante(QWidget *padre)
    : QFrame(padre)
{
    setObjectName(u"fraDatos"_s);
    crearCajas();
    m_cmdVia = crearBoton(u"cmdVia"_s);
    m_cmdProvincia = crearBoton(u"cmdProvincia"_s);
    m_cmdMunicipio = crearBoton(u"cmdMunicipio"_s);
    m_identificacion = grupoIdentificacion();
    m_domicilio = grupoDomicilio();
    m_contadores = grupoContadores();
    auto *todo = new QVBoxLayout(this);
    todo->setContentsMargins(0, 0, 0, 0);
    todo->setSpacing(12);
    for (auto *grupo : {m_identificacion, m_domicilio, m_contadores})
        todo->addWidget(grupo);
    todo->addStretch(1);
    ordenarTeclado();
}

void FichaDeclarante::crearCajas()
{
    for (int i = 0; i < Total; ++i) {
        const auto campo = static_cast<Cual>(i);
        const auto &definicion = tabla[campo];
        const auto filtro = soloCifras(campo) ? CajaTexto::Cifras : CajaTexto::Texto;
        const QString nombre = definicion.control.toString();
        m_cajas[campo] = new CajaTexto(nombre, limite(campo), filtro, this);
        if (definicion.conEtiqueta) {
            m_etiquetas[campo] = new QLabel(this);
            m_etiquetas[campo]->setObjectName(u"lbl"_s + nombre.mid(3));
            m_etiquetas[campo]->setBuddy(m_cajas[campo]);
        }
    }
    m_etiquetas[NOMPROV]->setBuddy(m_cajas[CODPROV]);
    for (const Cual campo : {VIAAUX, NOMPROV, NUM430, NUM480})
        m_cajas[campo]->bloquear(true);
    for (const Cual campo : {NUMERO, NUM430, NUM480})
        m_cajas[campo]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

QPushButton *FichaDeclarante::crearBoton(const QString &nombre)
{
    auto *boton = new QPushButton(this);
    boton->setObjectName(nombre);
    boton->setAutoDefault(false);
    return boton;
}

/// Each button comes after the code whose list it opens.
void FichaDeclarante::ordenarTeclado()
{
    QList<QWidget *> orden;
    for (int i = 0; i < Total; ++i) {
        orden += m_cajas[static_cast<size_t>(i)];
        if (i == VIA)
            orden += m_cmdVia;
        else if (i == CODPROV)
            orden += m_cmdProvincia;
        else if (i == CODMUN)
            orden += m_cmdMunicipio;
    }
    enlazarTab(orden);
}

/// A label over its controls.
QLayout *FichaDeclarante::disponer(const Celda &celda)
{
    auto *columna = new QVBoxLayout;
    columna->setSpacing(3);
    columna->addWidget(m_etiquetas[celda.etiqueta]);
    auto *fila = new QHBoxLayout;
    fila->setSpacing(6);
    bool crece = false;
    for (auto *control : celda.controles) {
        fila->addWidget(control);
        crece = crece || control->sizePolicy().horizontalPolicy() == QSizePolicy::Expanding;
    }
    if (!crece)
        fila->addStretch(1);
    columna->addLayout(fila);
    return columna;
}

static QGridLayout *rejilla(QGroupBox *grupo)
{
    auto *disposicion = new QGridLayout(grupo);
    disposicion->setContentsMargins(14, 10, 14, 12);
    disposicion->setHorizontalSpacing(Separacion);
    disposicion->setVerticalSpacing(10);
    return disposicion;
}

QGroupBox *FichaDeclarante::grupoIdentificacion()
{
    auto *grupo = new QGroupBox(this);
    auto *celdas = rejilla(grupo);
    celdas->addLayout(disponer({DNI, {m_cajas[DNI]}}), 0, 0);
    celdas->addLayout(disponer({NOMBRE, {m_cajas[NOMBRE]}}), 0, 1);
    celdas->setColumnStretch(1, 1);
    return grupo;
}

QGroupBox *FichaDeclarante::grupoDomicilio()
{
    auto *grupo = new QGroupBox(this);
    auto *celdas = rejilla(grupo);
    celdas->addLayout(disponer({VIA, {m_cajas[VIA], m_cmdVia, m_cajas[VIAAUX]}}), 0, 0);
    celdas->addLayout(disponer({DOMICILIO, {m_cajas[DOMICILIO]}}), 0, 1);

    auto *menores = new QHBoxLayout;
    menores->setSpacing(Separacion);
    for (const Cual campo : {NUMERO, LETRA, ESCALERA, PISO, MANO})
        menores->addLayout(disponer({campo, {m_cajas[campo]}}));
    menores->addStretch(1);
    celdas->addLayout(menores, 1, 0, 1, 2);

    celdas->addLayout(disponer({NOMPROV, {m_cajas[CODPROV], m_cmdProvincia, m_cajas[NOMPROV]}}), 2,
                      0);
    celdas->addLayout(disponer({CODPOS, {m_cajas[CODPOS]}}), 2, 1);
    celdas->addLayout(disponer({NOMMUN, {m_cajas[CODMUN], m_cmdMunicipio, m_cajas[NOMMUN]}}), 3, 0);
    celdas->addLayout(disponer({TELEFONO, {m_cajas[TELEFONO]}}), 3, 1);
    celdas->setColumnStretch(0, 3);
    celdas->setColumnStretch(1, 2);
    return grupo;
}

QGroupBox *FichaDeclarante::grupoContadores()
{
    auto *grupo = new QGroupBox(this);
    auto *fila = new QHBoxLayout(grupo);
    fila->setContentsMargins(14, 10, 14, 12);
    fila->setSpacing(8);
    for (const Cual campo : {NUM430, NUM480}) {
        fila->addWidget(m_etiquetas[campo]);
        fila->addWidget(m_cajas[campo]);
        fila->addSpacing(Separacion);
    }
    fila->addStretch(1);
    return grupo;
}

static void rotular(QPushButton *boton, const QString &texto, Msj pista)
{
    boton->setText(texto);
    boton->setToolTip(msj(pista) + u" (F4)"_s);
    boton->setAccessibleName(msj(pista));
}

void FichaDeclarante::Anadir_captions()
{
    for (size_t i = 0; i < Total; ++i) {
        const QString texto = msj(tabla[i].etiqueta);
        m_cajas[i]->setAccessibleName(QString(texto).remove(u':'));
        if (m_etiquetas[i])
            m_etiquetas[i]->setText(texto);
    }
    m_cajas[VIA]->setAccessibleName(msj(Msj::AccesibleSiglaVia));
    rotular(m_cmdVia, u"..."_s, Msj::PistaVia);
    rotular(m_cmdProvincia, msj(Msj::BotonProvincia), Msj::PistaProvincia);
    rotular(m_cmdMunicipio, msj(Msj::BotonMunicipio), Msj::PistaMunicipio);
    m_cmdVia->setFixedWidth(m_cmdVia->fontMetrics().horizontalAdvance(u"....."_s) + 16);
    const int ancho
        = std::max(m_cmdProvincia->sizeHint().width(), m_cmdMunicipio->sizeHint().width());
    m_cmdProvincia->setFixedWidth(ancho);
    m_cmdMunicipio->setFixedWidth(ancho);
    const int codigo = m_cajas[CODMUN]->sizeHint().width();
    for (const Cual campo : {VIA, CODPROV, CODMUN})
        m_cajas[campo]->setFixedWidth(codigo);
    m_identificacion->setTitle(msj(Msj::GrupoIdentificacion));
    m_domicilio->setTitle(msj(Msj::GrupoDomicilioFiscal));
    m_contadores->setTitle(msj(Msj::GrupoDeclaracionesGuardadas));
    m_cajas[VIAAUX]->setPlaceholderText(msj(Msj::ViaDesconocida));
}

void FichaDeclarante::PresentaNombres(const cDecDatos &datos, const QString &nombreVia)
{
    const bool sinVia = datos.VIA().isEmpty();
    m_cajas[VIAAUX]->setPlaceholderText(sinVia ? QString() : msj(Msj::ViaDesconocida));
    m_cajas[VIAAUX]->mostrar(nombreVia);
    m_cajas[NOMPROV]->mostrar(datos.NOMPROV());
}

void FichaDeclarante::PresentaDatos(const cDecDatos &datos, const QString &nombreVia)
{
    for (int i = 0; i < Total; ++i)
        if (i != VIAAUX)
            m_cajas[static_cast<size_t>(i)]->mostrar(presentar(static_cast<Cual>(i), datos));
    PresentaNombres(datos, nombreVia);

    const bool propia = datos.enProvinciaPropia();
    m_cajas[CODMUN]->bloquear(!propia);
    m_cajas[NOMMUN]->bloquear(propia);
    m_cmdMunicipio->setEnabled(propia);
    m_etiquetas[NOMMUN]->setBuddy(m_cajas[propia ? CODMUN : NOMMUN]);
}
