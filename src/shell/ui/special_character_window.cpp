// SPDX-License-Identifier: MIT
#include "shell/ui/special_character_window.h"

#include "platform/ui/elided_label.h"
#include "platform/ui/label.h"
#include "platform/ui/window_placing.h"
#include "resources/texts.h"
#include "settings/shell_settings.h"
#include "shell/special_character_model.h"
#include "shell/special_characters.h"
#include "shell/text_numbers.h"
#include "shell/ui/special_character_list.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>
#include <QWindow>

namespace {

/// The window as a dialog for assistive technology.
QAccessibleInterface *DialogInterface(const QString &className, QObject *object)
{
    auto *const widget =
        className == QStringLiteral("CSpecialCharacterWindow") ? qobject_cast<QWidget *>(object) : nullptr;
    return widget != nullptr ? new QAccessibleWidget(widget, QAccessible::Dialog) : nullptr;
}

/// The screen that shows the middle of the rectangle, else the first one.
QRect WorkArea(const QRect &rect)
{
    const QScreen *screen = QGuiApplication::screenAt(rect.center());
    if (screen == nullptr) {
        screen = QGuiApplication::primaryScreen();
    }
    return screen->availableGeometry();
}

}

CSpecialCharacterWindow::CSpecialCharacterWindow(CSpecialCharacters &characters, const CTexts &texts)
    : QWidget(nullptr,
        Qt::Tool | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint
            | Qt::WindowStaysOnTopHint | Qt::WindowDoesNotAcceptFocus),
      m_characters(characters), m_texts(texts), m_model(new CSpecialCharacterModel(characters, texts, this)),
      m_list(new CSpecialCharacterList(*m_model, texts, this)),
      m_help(MakeWrappedLabel(texts.Fill(Text::OwnCharactersHelp, {texts.Get(Text::RowForAdding)}), this)),
      m_message(new CElidedLabel(this))
{
    QAccessible::installFactory(DialogInterface);
    setObjectName(QStringLiteral("specialCharacters"));
    setWindowTitle(texts.Get(Text::SpecialCharactersTitle));
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_QuitOnClose, false);
    // Some desktops hide the utility windows of a program while another program is in front.
    setAttribute(Qt::WA_X11NetWmWindowTypeDialog);

    const EasyKeySettings &settings = characters.Settings();
    m_list->setObjectName(QStringLiteral("characters"));
    m_list->setAccessibleName(texts.Get(Text::SpecialCharacterList));
    m_help->setObjectName(QStringLiteral("help"));
    m_message->setObjectName(QStringLiteral("message"));
    QComboBox *const sets = MakeCombo(Text::CharacterSets, settings.subset, "characterSet");
    QComboBox *const docking = MakeCombo(Text::DockingSides, settings.dock, "docking");

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(MakeCaption(Text::SpecialCharacterSet, *sets));
    layout->addWidget(sets);
    layout->addWidget(m_list, 1);
    layout->addWidget(m_help);
    layout->addWidget(m_message);
    QLabel *const dockingCaption = MakeCaption(Text::SpecialCharacterDocking, *docking);
    layout->addWidget(dockingCaption);
    layout->addWidget(docking);
    dockingCaption->setVisible(CanPlaceWindows());
    docking->setVisible(CanPlaceWindows());
    setTabOrder(sets, m_list);
    setTabOrder(m_list, docking);
    m_list->setFocus();

    connect(sets, &QComboBox::currentIndexChanged, this, &CSpecialCharacterWindow::ShowSet);
    connect(docking, &QComboBox::currentIndexChanged, this, [this](int dock) {
        m_characters.Settings().dock = dock;
        Q_EMIT DockingChosen();
    });
    for (const auto change : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved}) {
        connect(m_model, change, this, &CSpecialCharacterWindow::ShowHelp);
    }
    connect(m_model, &QAbstractItemModel::modelReset, this, &CSpecialCharacterWindow::ShowHelp);
    connect(m_list, &CSpecialCharacterList::Chosen, this, &CSpecialCharacterWindow::Choose);
    connect(m_list, &CSpecialCharacterList::EditWanted, this, &CSpecialCharacterWindow::BeginEdit);
    connect(m_list, &CSpecialCharacterList::EditEnded, this, &CSpecialCharacterWindow::EndEdit);
    connect(m_list, &CSpecialCharacterList::RemoveWanted, this, &CSpecialCharacterWindow::Remove);
    connect(m_list, &CSpecialCharacterList::CurrentItemChanged, this,
        [this](int item) { m_characters.Settings().selected = item; });
}

CSpecialCharacterWindow::~CSpecialCharacterWindow()
{
    // An edit ends when the list is taken down.
    disconnect(m_list, nullptr, this, nullptr);
}

QComboBox *CSpecialCharacterWindow::MakeCombo(int items, int current, const char *name)
{
    auto *combo = new QComboBox(this);
    combo->setObjectName(QLatin1StringView(name));
    combo->addItems(m_texts.Get(items).split(u'\n'));
    combo->setCurrentIndex(current);
    return combo;
}

QLabel *CSpecialCharacterWindow::MakeCaption(int text, QWidget &buddy)
{
    // Assistive technology names a drop-down list by its label.
    QLabel *const label = MakeLabel(m_texts.Get(text), this);
    label->setBuddy(&buddy);
    return label;
}

void CSpecialCharacterWindow::ShowHelp()
{
    m_help->setVisible(m_characters.ShowsOwn() && m_characters.Count() == 1); // The row for adding alone.
}

void CSpecialCharacterWindow::Open(QWindow *above)
{
    if (!CanPlaceWindows()) {
        create();
        windowHandle()->setTransientParent(above);
    }
    const int selected = m_characters.Settings().selected;
    m_model->Reset(); // The own characters may have changed since.
    m_list->LayOut();
    ShowMessage({});
    RestorePlace();
    SetAcceptsFocus(false);
    show();
    m_list->SetCurrentItem(selected);
}

void CSpecialCharacterWindow::StayAbove(QWindow &window)
{
    const QWindow *const above = windowHandle()->transientParent();
    if (!CanPlaceWindows() && (above == nullptr || !above->isVisible())) {
        hide(); // Only a window that is shown anew tells whose child it is.
        windowHandle()->setTransientParent(&window);
        show();
    }
}

void CSpecialCharacterWindow::TakeFocus()
{
    if (HasFocus()) {
        return;
    }
    Q_EMIT TakingFocus();
    SetAcceptsFocus(true);
    raise();
    activateWindow();
    m_list->setFocus();
    if (m_list->CurrentItem() < 0) {
        m_list->SetCurrentItem(0);
    }
}

bool CSpecialCharacterWindow::HasFocus() const
{
    return QApplication::activeWindow() == this;
}

void CSpecialCharacterWindow::SetAcceptsFocus(bool accepts)
{
    // At the window of the display system: the widget's own flags can't be changed while it is shown.
    if (windowHandle() != nullptr) {
        windowHandle()->setFlag(Qt::WindowDoesNotAcceptFocus, !accepts);
    }
}

void CSpecialCharacterWindow::DockBeside(const QWidget &other)
{
    const bool isNormal = other.isVisible()
        && !(other.windowState() & (Qt::WindowMinimized | Qt::WindowMaximized | Qt::WindowFullScreen));
    const int dock = m_characters.Settings().dock;
    if (dock == 0 || !isNormal || &other == this || !CanPlaceWindows()) {
        return;
    }
    const QRect rect =
        DockedRect(dock, other.frameGeometry(), frameGeometry().width(), other.screen()->availableGeometry());
    const QSize frame = frameGeometry().size() - size();
    resize(rect.size() - frame);
    move(rect.topLeft());
}

// The place is that of the window's frame, the size is without it: the frame is known only while the window is
// shown.
void CSpecialCharacterWindow::RestorePlace()
{
    const QRect stored = StoredRect(m_characters.Settings());
    if (!stored.isEmpty()) {
        const QRect rect = FittedRect(stored, WorkArea(stored));
        resize(rect.size());
        if (CanPlaceWindows()) {
            move(rect.topLeft());
        }
    }
}

void CSpecialCharacterWindow::StorePlace()
{
    // Where windows can't be placed, the place means nothing but the size does.
    const QPoint place = CanPlaceWindows() ? pos() : QPoint();
    EasyKeySettings &settings = m_characters.Settings();
    settings.left = place.x();
    settings.top = place.y();
    settings.right = place.x() + width();
    settings.bottom = place.y() + height();
}

void CSpecialCharacterWindow::ChooseWaiting()
{
    m_list->ChooseWaiting();
}

void CSpecialCharacterWindow::ShowMessage(const QString &message)
{
    m_message->ShowText(message);
}

bool CSpecialCharacterWindow::Holds(const QObject *object) const
{
    while (object != nullptr && object != this) {
        object = object->parent();
    }
    return object != nullptr;
}

void CSpecialCharacterWindow::ShowSet(int set)
{
    ChooseWaiting();
    m_characters.Settings().subset = set;
    m_characters.Settings().selected = -1;
    m_model->Reset();
    m_list->LayOut();
    m_list->scrollToTop();
    ShowMessage({});
}

void CSpecialCharacterWindow::Choose(int item, Qt::KeyboardModifiers modifiers)
{
    ShowMessage({});
    const CharacterChoice choice = m_characters.Choose(
        item, modifiers.testFlag(Qt::ShiftModifier), modifiers.testFlag(Qt::ControlModifier));
    switch (choice.action) {
    case CharacterAction::Nothing:
        break;
    case CharacterAction::Send:
        Q_EMIT TextChosen(choice.text);
        break;
    case CharacterAction::Added:
        ShowMessage(m_texts.Fill(Text::OwnCharacterAdded, {choice.text}));
        break;
    case CharacterAction::BeginAdding:
        BeginEdit(item);
        break;
    }
}

void CSpecialCharacterWindow::BeginEdit(int item)
{
    if (!m_characters.ShowsOwn() || item < 0 || m_list->IsEditing()) {
        return;
    }
    m_focusForEdit = !HasFocus();
    TakeFocus();
    m_list->EditItem(item);
}

void CSpecialCharacterWindow::EndEdit()
{
    // Another window may have taken the focus, which is what ended the edit then.
    if (m_focusForEdit && HasFocus()) {
        Q_EMIT FocusNoLongerNeeded();
    }
    m_focusForEdit = false;
}

void CSpecialCharacterWindow::Remove(int item)
{
    if (m_model->Remove(item)) {
        m_list->SetCurrentItem(item);
    }
}

bool CSpecialCharacterWindow::event(QEvent *event)
{
    if (event->type() == QEvent::WindowDeactivate) {
        SetAcceptsFocus(false);
    }
    return QWidget::event(event);
}

void CSpecialCharacterWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape) {
        close();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void CSpecialCharacterWindow::closeEvent(QCloseEvent *event)
{
    ChooseWaiting();
    StorePlace();
    Q_EMIT Closing();
    QWidget::closeEvent(event);
}
