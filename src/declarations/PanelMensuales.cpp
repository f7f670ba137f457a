#include "declarations/PanelMensuales.h"

#include "core/Importe.h"
#include "core/Periodos.h"
#include "core/Textos.h"
#include "core/Unico.h"
#include "declarants/cDecResumen.h"
#include "declarations/GraficoCuotas.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
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
    , m_lblNo430(new QLabel(this))
    , m_lblTotales(new QLabel(this))
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
    m_lblTotales->setObjectName(u"lblTotales430"_s);
    m_lblTotales->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_grafico->setObjectName(u"picCuotas"_s);

    auto *rejilla = new QGridLayout(this);
    rejilla->setContentsMargins(0, 0, 0, 0);
    rejilla->setSpacing(6);
    rejilla->addWidget(m_titulo, 0, 0, 1, 2);
    rejilla->addWidget(m_lblNo430, 1, 0, 1, 2, Qt::AlignTop);
    rejilla->addWidget(m_lst430, 2, 0);
    rejilla->addWidget(m_lblTotales, 3, 0);
    rejilla->addWidget(m_grafico, 2, 1, 2, 1);
    rejilla->setColumnStretch(0, 3);
    rejilla->setColumnStretch(1, 2);
}

void PanelMensuales::cargar(const cDatos480 &registro)
{
    m_anno = registro.CargarMensuales();
    for (QWidget *parte : QList<QWidget *>{m_lst430, m_lblTotales, m_grafico})
        parte->setVisible(m_anno.has_value());
    m_lblNo430->setVisible(!m_anno);
}

void PanelMensuales::Anadir_captions()
{
    m_titulo->setText(msj(Msj::TituloMensuales430));
    m_lblNo430->setText(m_anno ? QString() : msj(Msj::SinDeclaracionesMensuales));
    m_lst430->setHeaderLabels({msj(Msj::ColumnaMes), msj(Msj::ColumnaBase), msj(Msj::Cuota)});
    m_lst430->setAccessibleName(msj(Msj::AccesibleListaMensuales));
    if (m_anno)
        mostrar();
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
    m_lblTotales->setText(msj(Msj::TotalAnualBase) + u": "_s + textoImporte(m_anno->base)
                          + u"    "_s + msj(Msj::TotalAnualCuota) + u": "_s
                          + textoImporte(m_anno->cuota));
    m_grafico->mostrar(*m_anno, unico::la<cDecResumen>().EJERCICIO());
}
