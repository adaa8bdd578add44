// SPDX-License-Identifier: Apache-2.0
#include "LuClipboard.h"

#include <LuShared/LuPlatform.h>
#include <LuShared/LuUtils.h>
#include <ZrCore/ZrDispatch.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QScopedValueRollback>

namespace {

/// The keys of the shortcut come up before those of copy and paste go down.
constexpr qint64 KeysUpMs = 100;
/// The clipboard holds what was captured for this long.
constexpr qint64 RecoverMs = 100;
/// The application fetches what it pastes within this time.
constexpr qint64 FetchMs = 300;

const QString KeysJob = QStringLiteral("handleKeyEventChanged");
const QString RecoverJob = QStringLiteral("recoverClipboard");
const QString PasteJob = QStringLiteral("pasteChanged");

/// The program itself changes the system clipboard, from whichever object.
bool ownChange = false;

/// The one whose copy came last: what another one still waits for does not come any more.
LuClipboard* copying = nullptr;

/// Those of all monitors: they share the one system clipboard.
QList<LuClipboard*>& clipboards()
{
    static QList<LuClipboard*> all;
    return all;
}

} // namespace

LuClipboard::LuClipboard(QObject* parent, const QString& monitor)
    : QObject(parent), m_clipboard(QGuiApplication::clipboard()),
      m_dispatch(QSharedPointer<ZrDispatch>::create(QStringLiteral("LuClipboard"), monitor))
{
    clipboards().append(this);
    connect(m_clipboard, &QClipboard::dataChanged, this, &LuClipboard::takeChange);
    connect(this, &LuClipboard::independentCopyChanged, this, [this] {
        ZrDispatch::main()->postUniqueLater(this, RecoverJob, RecoverMs, [this] { restore(); });
    });
}

LuClipboard::~LuClipboard()
{
    m_dispatch->close();
    clipboards().removeAll(this);
    if (copying == this)
        copying = nullptr;
    // Gone with the application, or changed while it ends, the clipboard is no more ours to mend.
    if (isAway() && QCoreApplication::instance() && !QCoreApplication::closingDown())
        restore();
}

void LuClipboard::independentCopy()
{
    // Without the keys nothing would answer, and the user's next copy of their own would pass for the answer.
    if (!LuPlatform::hasCopyPasteKeys())
        return;
    backUp();
    copying = this;
    ZrDispatch::main()->postUniqueLater(this, KeysJob, KeysUpMs, [] { LuPlatform::simulateCopy(); });
}

void LuClipboard::takeChange()
{
    if (ownChange || copying != this)
        return;
    copying = nullptr;
    m_independent.reset(LuUtils::copyMimeData(m_clipboard->mimeData()));
    Q_EMIT independentCopyChanged();
}

void LuClipboard::independentPaste()
{
    if (!m_independent || m_pasteBusy)
        return;
    backUp();
    m_pasteBusy = true;
    // A restore that waits would put the user's content in front of the paste; the paste's own comes later.
    ZrDispatch::main()->remove(this, RecoverJob, false);
    put(m_independent.get());
    m_dispatch->postUniqueLater(this, KeysJob, KeysUpMs, [this] {
        LuPlatform::simulatePaste();
        ZrDispatch::main()->postUniqueLater(this, PasteJob, FetchMs, [this] {
            restore();
            m_pasteBusy = false;
        });
    });
}

void LuClipboard::backUp()
{
    // While the user's content is away, the clipboard holds only what passes through.
    if (isAway())
        return;
    const QMimeData* users = m_clipboard->mimeData();
    for (const LuClipboard* other : std::as_const(clipboards())) {
        if (other->isAway())
            users = other->m_backup.get();
    }
    m_backup.reset(LuUtils::copyMimeData(users));
}

bool LuClipboard::isAway() const
{
    return m_pasteBusy || ZrDispatch::main()->has(const_cast<LuClipboard*>(this), RecoverJob);
}

void LuClipboard::restore()
{
    put(m_backup.get());
}

void LuClipboard::put(const QMimeData* content)
{
    const QScopedValueRollback own(ownChange, true);
    if (QMimeData* copy = LuUtils::copyMimeData(content))
        m_clipboard->setMimeData(copy);
    else
        m_clipboard->clear();
}
