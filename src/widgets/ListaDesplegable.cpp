#include "widgets/ListaDesplegable.h"

#include "widgets/PantallaBase.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QTimer>
#include <QValidator>

namespace {

class Mayusculas : public QValidator
{
public:
    using QValidator::QValidator;
    State validate(QString &texto, int &) const override
    {
        texto = texto.toUpper();
        return Acceptable;
    }
};

} // namespace

ListaDesplegable::ListaDesplegable(const QString &nombre, QWidget *padre)
    : QComboBox(padre)
{
    setObjectName(nombre);
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    setValidator(new Mayusculas(this));
    view()->installEventFilter(this);
    connect(lineEdit(), &QLineEdit::textEdited, this, [this] { m_pendiente = true; });
    connect(this, &QComboBox::activated, this, [this] {
        m_pendiente = true;
        confirmar();
    });
}

void ListaDesplegable::entradas(const QStringList &textos)
{
    clear();
    addItems(textos);
    mostrarEntrada(-1);
}

void ListaDesplegable::mostrarEntrada(int posicion)
{
    setCurrentIndex(posicion);
    setEditText(itemText(posicion));
    m_mostrada = posicion;
    m_pendiente = false;
}

void ListaDesplegable::descartar()
{
    mostrarEntrada(m_mostrada);
}

bool ListaDesplegable::confirmar()
{
    if (!m_pendiente || m_confirmando)
        return true;
    const QScopedValueRollback enCurso(m_confirmando, true);
    const QString texto = currentText().trimmed();
    const int posicion = texto.isEmpty() ? -1 : findText(texto, Qt::MatchFixedString);
    if (posicion < 0 && !texto.isEmpty()) {
        rechazar();
        return false;
    }
    const bool tomada = procedimiento(pantallaDe(this), [&] { alElegir(posicion); });
    m_pendiente = !tomada;
    if (tomada)
        m_mostrada = posicion;
    return tomada;
}

void ListaDesplegable::rechazar()
{
    alRechazar();
    // the list stays closed, so that the text can be put right
    QTimer::singleShot(0, this, [this] {
        if (recuperarFoco(this, Qt::PopupFocusReason))
            lineEdit()->selectAll();
    });
}

void ListaDesplegable::focusInEvent(QFocusEvent *evento)
{
    QComboBox::focusInEvent(evento);
    if (focoDePaso(evento->reason()))
        return;
    lineEdit()->selectAll();
    if (m_despliega)
        QTimer::singleShot(0, this, [this] {
            if (hasFocus() && isVisible() && !view()->isVisible())
                showPopup();
        });
}

void ListaDesplegable::focusOutEvent(QFocusEvent *evento)
{
    QComboBox::focusOutEvent(evento);
    if (confirmaAlSalir(evento->reason()))
        confirmar();
}

void ListaDesplegable::hideEvent(QHideEvent *evento)
{
    if (abandonada(this))
        descartar();
    QComboBox::hideEvent(evento);
}

/// The list of a combo box swallows Tab, which would hold a keyboard user in it.
bool ListaDesplegable::eventFilter(QObject *objeto, QEvent *evento)
{
    if (objeto == view() && evento->type() == QEvent::KeyPress) {
        const int tecla = static_cast<QKeyEvent *>(evento)->key();
        if (tecla == Qt::Key_Tab || tecla == Qt::Key_Backtab) {
            salirDeLaLista(tecla == Qt::Key_Tab);
            return true;
        }
    }
    return QComboBox::eventFilter(objeto, evento);
}

void ListaDesplegable::salirDeLaLista(bool adelante)
{
    const int elegida = view()->currentIndex().row();
    hidePopup();
    if (elegida >= 0 && elegida != currentIndex()) {
        setCurrentIndex(elegida);
        m_pendiente = true;
    }
    focusNextPrevChild(adelante);
}
