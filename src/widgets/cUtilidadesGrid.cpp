#include "widgets/cUtilidadesGrid.h"

#include "widgets/CajaBusqueda.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QTableView>

/// Capital without accent, so that "a" finds "Á". Ñ and Ç keep their own place.
static QChar plegar(QChar c)
{
    const QChar mayuscula = c.toUpper();
    if (mayuscula.unicode() < 0xC0 || mayuscula == u'Ñ' || mayuscula == u'Ç')
        return mayuscula;
    const QString partes = mayuscula.decomposition();
    return partes.isEmpty() ? mayuscula : partes.front();
}

static QString plegar(QString texto)
{
    for (QChar &c : texto)
        c = plegar(c);
    return texto;
}

cUtilidadesGrid::cUtilidadesGrid(QTableView *Flex)
    : QObject(Flex)
    , m_flex(Flex)
    , m_txtBusqueda(new CajaBusqueda(Flex))
{
    m_flex->installEventFilter(this);
}

void cUtilidadesGrid::columna(int columna)
{
    m_columna = columna;
    OcultarTxtBusqueda();
}

void cUtilidadesGrid::PosicionarTxtBusqueda()
{
    const auto *cabecera = m_flex->horizontalHeader();
    m_txtBusqueda->mostrarEn({cabecera->x() + cabecera->sectionViewportPosition(m_columna),
                              cabecera->y(), cabecera->sectionSize(m_columna), cabecera->height()});
}

void cUtilidadesGrid::OcultarTxtBusqueda()
{
    m_txtBusqueda->vaciar();
}

bool cUtilidadesGrid::hayAlgunaCondicion() const
{
    return !m_txtBusqueda->text().isEmpty();
}

void cUtilidadesGrid::SeleccionarGrid(const QString &texto)
{
    const auto *modelo = m_flex->model();
    const QString buscado = plegar(texto);
    int contenido = -1;
    for (int fila = 0; fila < modelo->rowCount(); ++fila) {
        const QString celda = plegar(modelo->index(fila, m_columna).data().toString());
        if (celda.startsWith(buscado)) {
            m_flex->selectRow(fila);
            return;
        }
        if (contenido < 0 && celda.contains(buscado))
            contenido = fila;
    }
    if (contenido >= 0)
        m_flex->selectRow(contenido);
    // nothing found: the box says so, the selection stays
    m_txtBusqueda->hallado(contenido >= 0);
}

bool cUtilidadesGrid::tecla(QKeyEvent *evento)
{
    if (evento->key() == Qt::Key_Escape && hayAlgunaCondicion()) {
        OcultarTxtBusqueda();
        return true;
    }
    QString texto = m_txtBusqueda->text();
    if (evento->key() == Qt::Key_Backspace && hayAlgunaCondicion())
        texto.chop(1);
    else if (!evento->text().isEmpty() && evento->text().front().isPrint()
             && (hayAlgunaCondicion() || !evento->text().front().isSpace())
             && !(evento->modifiers() & (Qt::ControlModifier | Qt::AltModifier)))
        texto += evento->text();
    else
        return false;
    m_txtBusqueda->hallado(true);
    m_txtBusqueda->setText(texto);
    if (texto.isEmpty()) {
        OcultarTxtBusqueda();
        return true;
    }
    PosicionarTxtBusqueda();
    SeleccionarGrid(texto);
    return true;
}

bool cUtilidadesGrid::eventFilter(QObject *objeto, QEvent *evento)
{
    if (evento->type() == QEvent::KeyPress)
        return tecla(static_cast<QKeyEvent *>(evento));
    if (evento->type() == QEvent::FocusOut)
        OcultarTxtBusqueda();
    return QObject::eventFilter(objeto, evento);
}
