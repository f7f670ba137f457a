#include "widgets/Caja.h"

#include "widgets/PantallaBase.h"

#include <QApplication>
#include <QFocusEvent>
#include <QScopedValueRollback>
#include <QTimer>

static constexpr QColor AmarilloPalido(255, 255, 206);

Caja::Caja(const QString &nombre, QWidget *padre)
    : QLineEdit(padre)
{
    setObjectName(nombre);
    connect(this, &QLineEdit::textEdited, this, &Caja::alEditar);
}

bool Caja::confirmar()
{
    if (!m_pendiente || m_confirmando)
        return true;
    const QScopedValueRollback enCurso(m_confirmando, true);
    m_pendiente = false;
    bool tomado = !alConfirmar;
    procedimiento(pantallaDe(this), [&] { tomado = tomado || alConfirmar(); });
    if (tomado)
        return true;
    m_pendiente = true;
    QTimer::singleShot(0, this, [this] { recuperarFoco(this); });
    return false;
}

void Caja::descartar()
{
    mostrar(m_mostrado);
}

void Caja::mostrar(const QString &texto)
{
    if (text() != texto)
        setText(texto);
    if (!hasFocus()) // a long text shows its beginning
        setCursorPosition(0);
    m_mostrado = texto;
    m_anterior = texto;
    m_pendiente = false;
}

void Caja::bloquear(bool bloqueada)
{
    setReadOnly(bloqueada);
    setFocusPolicy(bloqueada ? Qt::ClickFocus : Qt::StrongFocus);
    QPalette colores;
    if (bloqueada) {
        colores.setColor(QPalette::Base, AmarilloPalido);
        colores.setColor(QPalette::Text, Qt::black);
        colores.setColor(QPalette::PlaceholderText, Qt::darkGray);
    }
    setPalette(colores);
}

/// What changed is the stretch between the common beginning and the common end of both texts; only
/// that goes through the filter, so that stored characters which cannot be typed survive.
void Caja::alEditar(const QString &nuevo)
{
    const auto cola = nuevo.size() - cursorPosition();
    auto comun = std::min(cola, m_anterior.size());
    while (comun > 0 && !m_anterior.endsWith(nuevo.last(comun)))
        --comun;
    qsizetype prefijo = 0;
    const auto tope = std::min(m_anterior.size(), nuevo.size()) - comun;
    while (prefijo < tope && m_anterior.at(prefijo) == nuevo.at(prefijo))
        ++prefijo;

    QString antes = nuevo.left(prefijo);
    QString despues = nuevo.last(comun);
    const QString insertado = nuevo.mid(prefijo, nuevo.size() - prefijo - comun);
    const QString admitido = admitir(antes, insertado, despues);
    const bool rechazado = admitido.isNull();
    const QString resultado = rechazado ? m_anterior : antes + admitido + despues;
    const auto cursor = rechazado ? resultado.size() - comun : antes.size() + admitido.size();
    if (resultado != nuevo) {
        setText(resultado);
        setCursorPosition(static_cast<int>(cursor));
    }
    m_pendiente = m_pendiente || resultado != m_anterior;
    m_anterior = resultado;
}

void Caja::avisarDescartado(const QString &texto)
{
    QApplication::beep();
    if (auto *pantalla = pantallaDe(this))
        pantalla->decir(texto, true);
}

void Caja::focusInEvent(QFocusEvent *evento)
{
    QLineEdit::focusInEvent(evento);
    m_entradaConRaton = evento->reason() == Qt::MouseFocusReason;
    if (!focoDePaso(evento->reason()))
        selectAll();
}

void Caja::focusOutEvent(QFocusEvent *evento)
{
    QLineEdit::focusOutEvent(evento);
    if (confirmaAlSalir(evento->reason()))
        confirmar();
}

void Caja::hideEvent(QHideEvent *evento)
{
    if (abandonada(this))
        descartar();
    QLineEdit::hideEvent(evento);
}

void Caja::mouseReleaseEvent(QMouseEvent *evento)
{
    QLineEdit::mouseReleaseEvent(evento);
    if (m_entradaConRaton && !hasSelectedText())
        selectAll();
    m_entradaConRaton = false;
}
