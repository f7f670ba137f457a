#include "help/TeclaAyuda.h"

#include "help/FrmAyuda.h"
#include "help/TemasAyuda.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QWidget>

#ifdef Q_OS_WIN
#include "core/Textos.h"

#include <QDir>
#include <QFile>
#include <QLibrary>
#include <qt_windows.h>
#endif

using namespace Qt::StringLiterals;

#ifdef Q_OS_WIN
static bool abrirCompilada(const QString &tema)
{
    const QString fichero = QCoreApplication::applicationDirPath()
        + elegir(u"/Ayuda/Ayuda.chm"_s, u"/Ayuda/Laguntza.chm"_s);
    if (!QFile::exists(fichero))
        return false;
    using Visor = HWND(WINAPI *)(HWND, LPCWSTR, UINT, DWORD_PTR);
    const auto visor = reinterpret_cast<Visor>(QLibrary::resolve(u"hhctrl.ocx"_s, "HtmlHelpW"));
    const QString lugar = QDir::toNativeSeparators(fichero) + u"::/"_s + tema;
    constexpr UINT mostrarTema = 0;
    return visor
        && visor(GetDesktopWindow(), reinterpret_cast<LPCWSTR>(lugar.utf16()), mostrarTema, 0);
}
#else
static bool abrirCompilada(const QString &)
{
    return false;
}
#endif

void abrirAyuda(const QString &tema)
{
    if (!abrirCompilada(tema))
        FrmAyuda::mostrar(tema);
}

/// The topic of the screen that `desde` belongs to; in the main window, of the screen in front.
static QString temaDe(const QWidget *desde)
{
    for (const auto *widget = desde; widget; widget = widget->parentWidget()) {
        const auto *area = widget->isWindow() ? widget->findChild<QMdiArea *>() : nullptr;
        const auto *delante = area ? area->activeSubWindow() : nullptr;
        const auto *pantalla = delante && delante->widget() ? delante->widget() : widget;
        QString tema = ayuda::temaDePantalla(pantalla->objectName());
        if (!tema.isEmpty())
            return tema;
    }
    return ayuda::portada();
}

TeclaAyuda::TeclaAyuda()
{
    qApp->installEventFilter(this);
}

bool TeclaAyuda::eventFilter(QObject *objeto, QEvent *evento)
{
    const auto *widget = qobject_cast<QWidget *>(objeto);
    const bool tecla
        = evento->type() == QEvent::KeyPress || evento->type() == QEvent::ShortcutOverride;
    if (!widget || !tecla)
        return false;
    const auto *pulsada = static_cast<QKeyEvent *>(evento);
    if (pulsada->key() != Qt::Key_F1 || pulsada->modifiers() != Qt::NoModifier)
        return false;
    // taken before the menu's own F1, which leads to the contents page
    evento->accept();
    if (evento->type() == QEvent::KeyPress && !pulsada->isAutoRepeat())
        abrirAyuda(temaDe(widget));
    return true;
}
