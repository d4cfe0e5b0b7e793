// SPDX-License-Identifier: MIT
#include "editor/ui/win32_view.h"

#include "document/win32_doc.h"
#include "editor/clipboard_data.h"
#include "editor/clipboard_text.h"
#include "editor/text_numbers.h"
#include "editor/ui/entry_fields.h"
#include "editor/ui/word_list_control.h"
#include "editor/word_list_model.h"
#include "platform/ui/elided_label.h"
#include "resources/texts.h"
#include "settings/settings.h"
#include "settings/settings_changes.h"

#include <QAccessible>
#include <QGridLayout>
#include <QLineEdit>
#include <QMimeData>

namespace {

CElidedLabel *MakeLine(QWidget *parent, const char *name)
{
    auto *label = new CElidedLabel(parent);
    label->setObjectName(QLatin1StringView(name));
    return label;
}

/// The ranges of rows without what lies behind the last row.
std::vector<std::pair<int, int>> RangesUpTo(std::vector<std::pair<int, int>> ranges, int last)
{
    std::erase_if(ranges, [last](const auto &range) { return range.first > last; });
    if (!ranges.empty()) {
        ranges.back().second = std::min(ranges.back().second, last);
    }
    return ranges;
}

}

CWin32View::CWin32View(const ViewServices &services, QWidget *parent)
    : QWidget(parent), m_services(services), m_summary(services.document, services.texts),
      m_model(new CWordListModel(services.document, services.settings.editor, services.texts, this)),
      m_list(new CWordListControl(this)), m_fields(new CEntryFields(services.texts, this)),
      m_notice(MakeLine(this, "notice")), m_author(MakeLine(this, "author")),
      m_comments(MakeLine(this, "comments")),
      m_editing({services.document, m_model->Rows(), services.settings.editor, services.settings.arrange,
                    services.texts, services.prompt},
          *this),
      m_pending(services.document, services.prompt, m_model->Rows(), m_editing, *this)
{
    m_list->setObjectName(QStringLiteral("wordList"));
    m_list->setAccessibleName(services.texts.Get(Text::ViewList));
    m_list->SetListModel(m_model);
    m_list->SetQuickEdit([this] { return m_services.settings.editor.quickedit; });
    m_fields->setVisible(services.settings.editor.showEditFields);

    auto *layout = new QGridLayout(this);
    m_notice->hide();
    layout->addWidget(m_notice, 0, 0, 1, 2);
    layout->addWidget(m_author, 1, 0);
    layout->addWidget(m_comments, 1, 1);
    layout->addWidget(m_list, 2, 0, 1, 2);
    layout->addWidget(m_fields, 3, 0, 1, 2);
    layout->setRowStretch(2, 1);
    layout->setColumnStretch(0, 1);
    layout->setColumnStretch(1, 1);
    setFocusProxy(m_list);

    ConnectList();
    connect(m_fields, &CEntryFields::NewEntry, this, &CWin32View::ClearFields);
    connect(m_fields, &CEntryFields::AddOrChange, this, &CWin32View::FieldsEntered);
    connect(&services.document, &CWin32Doc::Changed, this, &CWin32View::ListChanged);
    connect(m_fields, &CEntryFields::Entered, this, [this](int field) {
        if (field != CWordEntry::NoteField) {
            TellTermWanted(m_fields->Line(field), field, m_fields->Texts()[size_t(1 - field)]);
        }
    });
    connect(m_fields, &CEntryFields::Typed, this, &CWin32View::TypedChanged);
    connect(&services.settingsChanges, &CSettingsChanges::Changed, this, [this](SettingsSection section) {
        if (section == SettingsSection::Editor) {
            FollowSettings();
        }
    });
    RefreshAll();
}

void CWin32View::ConnectList()
{
    connect(m_list->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        if (!m_suppressSelectionSync) {
            if (!std::exchange(m_fieldsStandAlone, false)) {
                KeepFields();
            }
            ReadSelection();
        }
    });
    connect(m_list, &CWordListControl::CursorMoved, this, &CWin32View::SelectionChanged);
    connect(m_list, &CWordListControl::EditorOpened, this, &CWin32View::EditorOpened);
    connect(m_list, &CWordListControl::Typed, this, &CWin32View::TypedChanged);
    connect(m_list, &CWordListControl::CellEdited, this, &CWin32View::CellEdited);
    connect(m_list, &CWordListControl::LeftEmpty, this, [this](int row, int field) {
        if (m_model->Rows().IsNewEntryRow(row)) {
            m_editing.ClearPending(field);
        }
    });
    connect(m_list, &CWordListControl::FlagClicked, this, &CWin32View::FlagClicked);
    connect(m_list, &CWordListControl::FlagKeyPressed, this, &CWin32View::InvertFlagsRequested);
    connect(m_list, &CWordListControl::CellDoubleClicked, this, &CWin32View::CellDoubleClicked);
    connect(m_list, &CWordListControl::SearchTyped, this, &CWin32View::SearchTyped);
    m_list->SetDragData([this] {
        const std::vector<int> entries = SelectedEntries();
        return entries.empty() ? nullptr : ClipboardDataOf(m_services.document.List(), entries, AllColumns);
    });
    connect(m_list, &CWordListControl::RowsDropped, this, &CWin32View::RowsDropped);
    connect(m_list, &CWordListControl::DataDropped, this, &CWin32View::DataDropped);
    connect(m_list, &CWordListControl::RowMenuRequested, this, &CWin32View::RowMenuRequested);
    connect(m_list, &CWordListControl::HeaderMenuRequested, this, &CWin32View::ColumnMenuRequested);
    connect(m_list, &CWordListControl::HeaderClicked, this, [this](int field) {
        if (field != CWordListModel::NumberColumn) { // The numbers are the order itself.
            Q_EMIT SortRequested(field);
        }
    });
}

void CWin32View::ListChanged(const ListChange &change)
{
    if (change.replaced) {
        ForgetDocument();
    }
    const int entries = m_model->Rows().EntryCount();
    KeepSelection([this, &change] {
        if (!m_model->Apply(change)) {
            m_list->LayoutChangedColumns();
        }
    });
    if (m_model->Rows().EntryCount() > entries) {
        m_list->WidenNumberColumn();
    }
    if (change.PropertiesChanged()) {
        ShowProperties();
    }
    if (!change.replaced && m_list->hasFocus()) {
        m_list->TellCursorChanged(); // Its flag may be another.
    }
}

void CWin32View::FollowSettings()
{
    const bool fields = m_services.settings.editor.showEditFields;
    if (fields == m_fields->isHidden()) {
        m_fields->setVisible(fields);
        if (!fields) {
            m_list->setFocus();
        }
    }
    RefreshAll();
}

void CWin32View::ForgetDocument()
{
    m_list->EndEditing(false);
    EmptyFields(); // Before the selection goes, which would keep what they hold.
    m_list->clearSelection();
    m_list->setCurrentIndex({});
    m_list->scrollToTop();
}

void CWin32View::RefreshAll()
{
    KeepSelection([this] { m_model->Reset(); });
    m_list->LayoutChangedColumns();
    ShowProperties();
}

void CWin32View::ShowProperties()
{
    const CWordList &list = m_services.document.List();
    m_author->ShowText(m_services.texts.Fill(Text::ViewAuthor, {list.GetAuthor()}));
    m_comments->ShowText(m_services.texts.Fill(Text::ViewComments, {list.GetComments()}));
    m_fields->SetLanguages(list.GetLanguage(0), list.GetLanguage(1));
}

void CWin32View::KeepSelection(const std::function<void()> &show)
{
    const auto ranges = m_list->SelectedRanges();
    const int row = m_list->CursorRow();
    const int field = m_list->CursorField();
    bool reset = false;
    const auto connection = connect(m_model, &QAbstractItemModel::modelReset, this, [&reset] { reset = true; });
    m_suppressSelectionSync = true;
    show();
    disconnect(connection);
    if (reset) {
        m_list->SelectRanges(RangesUpTo(ranges, m_model->rowCount() - 1));
    }
    if (reset || m_list->CursorRow() == NoRow) {
        PlaceCursor(row, field);
    }
    m_suppressSelectionSync = false;
    ReadSelection();
}

void CWin32View::PlaceCursor(int row, int field)
{
    // Without a cursor no key would have a cell to go to.
    const int wanted = row == NoRow ? int(!m_services.settings.editor.lang1first) : std::max(field, 0);
    m_list->SetCursor(row == NoRow ? m_model->Rows().InsertionPoint() : std::min(row, m_model->rowCount() - 1),
        std::min(wanted, LastField()));
}

void CWin32View::ShowNotice(const QString &notice)
{
    m_notice->ShowText(notice);
    m_notice->setVisible(!notice.isEmpty());
    if (!notice.isEmpty()) {
        QAccessibleEvent event(m_notice, QAccessible::Alert);
        QAccessible::updateAccessibility(&event);
    }
}

void CWin32View::UpdateStatusText(const QString &text)
{
    Q_EMIT StatusTextChanged(text.isEmpty()
            ? m_summary.Describe(SelectedRowCount(), SelectedEntryCount(), FirstSelectedEntry())
            : text);
}
