#include "maintenance/FrmVersionCheck.h"

#include "core/Rutas.h"
#include "core/Textos.h"
#include "core/Unico.h"
#include "dataservice/ErrorDatos.h"
#include "maintenance/VersionPublicada.h"
#include "maintenance/cActOnline.h"
#include "widgets/Disposicion.h"
#include "widgets/Mensajes.h"
#include "widgets/Navegador.h"

#include <QFile>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

static constexpr Msj Rotulos[]
    = {Msj::VersionActual, Msj::VersionDisponible, Msj::DescripcionVersion, Msj::DireccionDescarga,
       Msj::FicheroVersion};

static QLineEdit *cajaFija(const QString &nombre, QWidget *padre)
{
    auto *caja = new QLineEdit(padre);
    caja->setObjectName(nombre);
    caja->setReadOnly(true);
    return caja;
}

FrmVersionCheck::FrmVersionCheck(QWidget *padre)
    : PantallaBase(u"FrmVersionCheck"_s, padre)
    , m_fraVersion(new QGroupBox(this))
    , m_lblActual(nuevaEtiqueta(u"LblActual"_s, this))
    , m_lblDisponible(nuevaEtiqueta(u"LblDisponible"_s, this))
    , m_txtInfo(new QPlainTextEdit(this))
    , m_txtUrl(cajaFija(u"TxtUrl"_s, this))
    , m_txtPath(cajaFija(u"TxtPath"_s, this))
    , m_cmdActualizar(new QPushButton(this))
    , m_cmdContinuar(new QPushButton(this))
{
    m_fraVersion->setObjectName(u"FraVersion"_s);
    m_txtInfo->setObjectName(u"TxtInfo"_s);
    m_txtInfo->setReadOnly(true);
    m_txtInfo->setTabChangesFocus(true);
    m_cmdActualizar->setObjectName(u"CmdActualizar"_s);
    m_cmdContinuar->setObjectName(u"CmdContinuar"_s);
    disponer();
    Anadir_captions();
    PresentaDatos();
    alPulsar(m_cmdActualizar,
             [this] { LanzarExplorador(unico::la<cActOnline>().ActDownloadURL()); });
    alPulsar(m_cmdContinuar, [this] { cerrarA(Pantalla::Ninguna); });
    (m_cmdActualizar->isEnabled() ? m_cmdActualizar : m_cmdContinuar)->setFocus();
}

void FrmVersionCheck::disponer()
{
    QWidget *const valores[] = {m_lblActual, m_lblDisponible, m_txtInfo, m_txtUrl, m_txtPath};
    auto *rejilla = new QGridLayout(m_fraVersion);
    rejilla->setContentsMargins(MargenPantalla);
    int fila = 0;
    for (auto *valor : valores) {
        auto *rotulo = nuevaEtiqueta(QString(), this, valor);
        m_rotulos.append(rotulo);
        rejilla->addWidget(rotulo, fila, 0, valor == m_txtInfo ? Qt::AlignTop : Qt::AlignVCenter);
        rejilla->addWidget(valor, fila++, 1);
    }
    const int letra = fontMetrics().averageCharWidth();
    m_txtUrl->setMinimumWidth(56 * letra);
    m_txtInfo->setFixedHeight(6 * fontMetrics().height());

    auto *botones = new QHBoxLayout;
    botones->addStretch();
    botones->addWidget(m_cmdActualizar);
    botones->addWidget(m_cmdContinuar);
    auto *todo = new QVBoxLayout(this);
    todo->setContentsMargins(MargenDialogo);
    todo->addWidget(m_fraVersion);
    todo->addLayout(botones);
}

void FrmVersionCheck::Anadir_captions()
{
    setWindowTitle(msj(Msj::TituloActualizacion));
    m_fraVersion->setTitle(msj(Msj::MarcoVersion));
    for (qsizetype i = 0; i < m_rotulos.size(); ++i)
        m_rotulos.at(i)->setText(msj(Rotulos[i]));
    m_cmdActualizar->setText(msj(Msj::BotonActualizar));
    m_cmdActualizar->setToolTip(msj(Msj::PistaActualizar));
    m_cmdContinuar->setText(msj(Msj::BotonContinuar));
}

void FrmVersionCheck::PresentaDatos()
{
    const auto &estado = unico::la<cActOnline>();
    m_lblActual->setText(estado.VersionPropia());
    m_lblDisponible->setText(estado.VersionPublicada());
    m_txtInfo->setPlainText(estado.ActDescripcion());
    m_txtUrl->setText(estado.ActDownloadURL());
    m_txtUrl->setCursorPosition(0);
    m_txtPath->setText(estado.ActFile());
    m_cmdActualizar->setEnabled(estado.ComVer() != 0);
}

void FrmVersionCheck::LanzarExplorador(const QString &direccion)
{
    if (!direccionSegura(direccion))
        return aviso(msj(Msj::DireccionNoAdmitida, direccion));
    QFile pagina(rutas().programa + u"/temphtm.HTM"_s);
    pagina.remove();
    const QByteArray texto = paginaTemporal(direccion);
    // opened only as a new file: what cannot be deleted is not written into either
    if (!pagina.open(QIODevice::WriteOnly | QIODevice::NewOnly)
        || pagina.write(texto) != texto.size() || !pagina.flush())
        throw ErrorDatos(Fallo::SoloLectura, pagina.fileName(), pagina.errorString());
    pagina.close();
    if (!navegador::abrirFichero(pagina.fileName()))
        mensajes::aviso(this, msj(Msj::TituloSinNavegador), msj(Msj::SinNavegador));
}
