#include "declarations/PanelMensuales.h"

#include "core/Importe.h"
#include "core/Textos.h"
#include "core/Unico.h"
#include "declarants/cDecResumen.h"
#include "declarations/GraficoCuotas.h"
#include "widgets/Disposicion.h"

#include <QEvent>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>

using namespace Qt::StringLiterals;

namespace {

/// Wishes to be as high as its twelve months; a small screen may give it less.
class ListaMeses : public QTreeWidget
{
public:
    using QTreeWidget::QTreeWidget;

    QSize sizeHint() const override
    {
        return {QTreeWidget::sizeHint().width(), 13 * (fontMetrics().height() + 2) + 6};
    }
    QSize minimumSizeHint() const override { return {200, 6 * fontMetrics().height()}; }
};

} // namespace

PanelMensuales::PanelMensuales(QWidget *padre)
    : QWidget(padre)
    , m_titulo(new QLabel(this))
    , m_lst430(new ListaMeses(this))
    , m_cmdTomar(new QPushButton(this))
    , m_lblNo430(new QLabel(this))
    , m_lblAparte(nuevaEtiqueta(u"lblAparte"_s, this))
    , m_pie(new QWidget(this))
    , m_grafico(new GraficoCuotas(this))
{
    m_lst430->setObjectName(u"lst430"_s);
    m_lst430->setColumnCount(3);
    m_lst430->setRootIsDecorated(false);
    m_lst430->setUniformRowHeights(true);
    m_lst430->setAlternatingRowColors(true);
    m_lst430->header()->setSectionResizeMode(QHeaderView::Stretch);
    m_lst430->header()->setSectionsMovable(false);
    for (const int columna : {1, 2})
        m_lst430->headerItem()->setTextAlignment(columna, Qt::AlignRight | Qt::AlignVCenter);
    m_lblNo430->setObjectName(u"lblNo430"_s);
    m_cmdTomar->setObjectName(u"cmdTomarMensuales"_s);
    m_cmdTomar->setAutoDefault(false);
    static constexpr QStringView totales[] = {u"lblTotales430", u"lblTotalBase", u"lblTotalCuota"};
    for (int columna = 0; columna < 3; ++columna) {
        m_totales[columna] = nuevaEtiqueta(totales[columna].toString(), m_pie);
        m_totales[columna]->setTextInteractionFlags(Qt::TextSelectableByMouse);
        m_totales[columna]->setAlignment((columna == 0 ? Qt::AlignLeft : Qt::AlignRight)
                                         | Qt::AlignVCenter);
        QFont negrita = font();
        negrita.setBold(true);
        m_totales[columna]->setFont(negrita);
    }
    m_pie->setFixedHeight(fontMetrics().height() + 8);
    m_lst430->viewport()->installEventFilter(this);
    m_grafico->setObjectName(u"picCuotas"_s);

    auto *rejilla = new QGridLayout(this);
    rejilla->setContentsMargins(0, 0, 0, 0);
    rejilla->setSpacing(6);
    rejilla->addWidget(m_titulo, 0, 0);
    rejilla->addWidget(m_cmdTomar, 0, 1, Qt::AlignRight);
    rejilla->addWidget(m_lblNo430, 1, 0, 1, 2, Qt::AlignTop);
    rejilla->addWidget(m_lst430, 2, 0);
    rejilla->addWidget(m_pie, 3, 0);
    rejilla->addWidget(m_grafico, 2, 1, 2, 1);
    rejilla->addWidget(m_lblAparte, 4, 0, 1, 2);
    rejilla->setColumnStretch(0, 3);
    rejilla->setColumnStretch(1, 2);
}

void PanelMensuales::cargar(const cDatos480 &registro)
{
    m_anno = registro.CargarMensuales();
    for (QWidget *parte : QList<QWidget *>{m_lst430, m_pie, m_grafico, m_cmdTomar})
        parte->setVisible(m_anno.has_value());
    m_lblNo430->setVisible(!m_anno);
    m_bandas = m_anno ? registro.Bandas(*m_anno) : BandasMensuales();
}

void PanelMensuales::Anadir_captions()
{
    m_titulo->setText(msj(Msj::TituloMensuales430));
    m_lblNo430->setText(m_anno ? QString() : msj(Msj::SinDeclaracionesMensuales));
    m_lst430->setHeaderLabels({msj(Msj::ColumnaMes), msj(Msj::ColumnaBase), msj(Msj::Cuota)});
    m_lst430->setAccessibleName(msj(Msj::AccesibleListaMensuales));
    m_cmdTomar->setText(msj(Msj::BotonTomarMensuales));
    m_cmdTomar->setToolTip(msj(Msj::PistaTomarMensuales));
    presentarAparte();
    if (m_anno)
        mostrar();
}

/// What is in the months and goes into no band.
void PanelMensuales::presentarAparte()
{
    QStringList partes;
    if (m_bandas.baseRectificada != 0 || m_bandas.cuotaRectificada != 0)
        partes += msj(Msj::RectificacionesAparte, textoImporte(m_bandas.baseRectificada),
                      textoImporte(m_bandas.cuotaRectificada));
    QStringList meses;
    for (const int mes : std::as_const(m_bandas.deOtroTipo))
        meses += nombreMes(mes);
    if (!meses.isEmpty())
        partes += msj(Msj::MesesDeOtroTipo, meses.join(u", "_s));
    m_lblAparte->setText(partes.join(u'\n'));
    m_lblAparte->setVisible(!partes.isEmpty());
}

void PanelMensuales::mostrar()
{
    m_lst430->clear();
    for (int mes = 1; const auto &datos : m_anno->meses) {
        auto *fila = new QTreeWidgetItem(m_lst430, {nombreMes(mes++)});
        for (int columna = 1; columna <= 2; ++columna) {
            fila->setTextAlignment(columna, Qt::AlignRight | Qt::AlignVCenter);
            if (datos)
                fila->setText(columna, textoImporte(columna == 1 ? datos->base : datos->cuota));
        }
    }
    m_totales[0]->setText(msj(Msj::Total));
    m_totales[1]->setText(textoImporte(m_anno->base));
    m_totales[1]->setAccessibleName(msj(Msj::TotalAnualBase));
    m_totales[2]->setText(textoImporte(m_anno->cuota));
    m_totales[2]->setAccessibleName(msj(Msj::TotalAnualCuota));
    colocarTotales();
    m_grafico->mostrar(*m_anno, unico::la<cDecResumen>().EJERCICIO());
}

bool PanelMensuales::eventFilter(QObject *objeto, QEvent *evento)
{
    if (evento->type() == QEvent::Resize)
        colocarTotales();
    return QWidget::eventFilter(objeto, evento);
}

/// The three columns share the width of the list.
void PanelMensuales::colocarTotales()
{
    // as far from the edges of a column as the figures of its cells
    constexpr int margen = 3;
    const int ancho = m_lst430->viewport()->width() / 3;
    for (int columna = 0; columna < 3; ++columna)
        m_totales[columna]->setGeometry(m_lst430->frameWidth() + columna * ancho + margen, 0,
                                        ancho - 2 * margen, m_pie->height());
}
