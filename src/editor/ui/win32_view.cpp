// SPDX-License-Identifier: MIT
#include "editor/ui/win32_view.h"

#include "document/win32_doc.h"
#include "editor/ui/entry_fields.h"
#include "editor/ui/word_list_control.h"
#include "editor/word_list_model.h"
#include "platform/ui/elided_label.h"
#include "resources/text_numbers.h"
#include "resources/texts.h"
#include "settings/editor_settings.h"

#include <QGridLayout>

namespace {

CElidedLabel *MakeLabel(QWidget *parent, const char *name)
{
    auto *label = new CElidedLabel(parent);
    label->setObjectName(QLatin1StringView(name));
    return label;
}

}

CWin32View::CWin32View(const ViewServices &services, QWidget *parent)
    : QWidget(parent), m_services(services), m_summary(services.document, services.texts),
      m_model(new CWordListModel(services.document, services.settings, services.texts, this)),
      m_list(new CWordListControl(this)), m_fields(new CEntryFields(services.texts, this)),
      m_author(MakeLabel(this, "author")), m_comments(MakeLabel(this, "comments")),
      m_editing({services.document, m_model->Rows(), services.settings, services.arrange, services.texts,
                    services.prompt},
          *this),
      m_clipboard(*this, services.document, services.texts)
{
    m_list->setObjectName(QStringLiteral("wordList"));
    m_list->setAccessibleName(services.texts.Get(Text::ViewList));
    m_list->setListModel(m_model);
    m_list->setQuickEdit([this] { return m_services.settings.quickedit; });
    m_fields->setVisible(services.settings.showEditFields);

    auto *layout = new QGridLayout(this);
    layout->addWidget(m_author, 0, 0);
    layout->addWidget(m_comments, 0, 1);
    layout->addWidget(m_list, 1, 0, 1, 2);
    layout->addWidget(m_fields, 2, 0, 1, 2);
    layout->setRowStretch(1, 1);
    layout->setColumnStretch(0, 1);
    layout->setColumnStretch(1, 1);
    setFocusProxy(m_list);

    ConnectList();
    connect(m_fields, &CEntryFields::NewEntry, this, &CWin32View::ClearFields);
    connect(m_fields, &CEntryFields::AddOrChange, this, &CWin32View::FieldsEntered);
    connect(&services.document, &CWin32Doc::DocumentReplaced, this, [this] {
        // What was typed and selected belonged to the document before.
        m_list->EndEditing(false);
        m_list->clearSelection();
        m_list->setCurrentIndex({});
        m_list->scrollToTop();
        m_model->Rows().pending = {};
        m_model->Rows().SetInsertionPoint(0);
    });
    connect(&services.document, &CWin32Doc::ListReplaced, this, &CWin32View::ListReplaced);
    RefreshAll();
}

void CWin32View::ConnectList()
{
    connect(m_list->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        if (!m_suppressSelectionSync) {
            ReadSelection();
        }
    });
    connect(m_list, &CWordListControl::CursorMoved, this, &CWin32View::SelectionChanged);
    connect(m_list, &CWordListControl::CellEdited, this, &CWin32View::CellEdited);
    connect(m_list, &CWordListControl::FlagClicked, this, &CWin32View::FlagClicked);
    connect(m_list, &CWordListControl::FlagKeyPressed, this, [this] { SetFlags(FlagMode::Toggle); });
    connect(m_list, &CWordListControl::CellDoubleClicked, this, &CWin32View::CellDoubleClicked);
    connect(m_list, &CWordListControl::SearchTyped, this, &CWin32View::SearchTyped);
    connect(m_list, &CWordListControl::RowMenuRequested, this, &CWin32View::RowMenuRequested);
    connect(m_list, &CWordListControl::HeaderMenuRequested, this, &CWin32View::ColumnMenuRequested);
    connect(m_list, &CWordListControl::HeaderClicked, this, [this](int field) {
        if (field >= 0) { // The numbers are the order itself.
            Sort(field);
        }
    });
}

void CWin32View::ListReplaced()
{
    m_list->EndEditing(false);
    RefreshAll();
}

void CWin32View::RefreshAll()
{
    ResetRows(true);
    ShowProperties();
    m_services.document.UpdateTitleMark();
}

void CWin32View::ShowProperties()
{
    const CWordList &list = m_services.document.List();
    m_author->setText(m_services.texts.Fill(Text::ViewAuthor, {list.GetAuthor()}));
    m_comments->setText(m_services.texts.Fill(Text::ViewComments, {list.GetComments()}));
    m_fields->SetLanguages(list.GetLanguage(0), list.GetLanguage(1));
}

void CWin32View::ResetRows(bool keepSelection, std::optional<std::pair<int, int>> cursor)
{
    auto ranges = keepSelection ? m_list->SelectedRanges() : std::vector<std::pair<int, int>>();
    const auto [cursorRow, usedField] = cursor.value_or(std::pair(m_list->CursorRow(), m_list->CursorField()));
    const int cursorField = cursorRow < 0 ? int(!m_services.settings.lang1first) : std::max(usedField, 0);

    m_suppressSelectionSync = true;
    m_model->Reset();
    const int last = m_model->rowCount() - 1;
    std::erase_if(ranges, [last](const auto &range) { return range.first > last; });
    if (!ranges.empty()) {
        ranges.back().second = std::min(ranges.back().second, last);
    }
    m_list->SelectRanges(ranges);
    // Without a cursor no key would have a cell to go to.
    const int lastField = m_model->column(CWordEntry::NoteField) < m_model->columnCount() ? 2 : 1;
    const int row = cursorRow < 0 ? InsertionPoint() : std::min(cursorRow, last);
    m_list->SetCursor(row, std::min(cursorField, lastField));
    m_suppressSelectionSync = false;
    m_list->layoutChangedColumns();
    ReadSelection();
}

void CWin32View::RedrawEntries(int first, int last)
{
    m_services.document.UpdateTitleMark();
    if (m_model->Rows().EntryCount() != m_services.document.List().Count()) {
        ResetRows(true);
    } else if (first < 0) {
        m_model->AllRowsChanged();
    } else {
        const CRowModel &rows = m_model->Rows();
        m_model->RowsChanged(rows.RowOfEntry(first), rows.RowOfEntry(std::max(first, last)));
    }
}

void CWin32View::UpdateStatusText(const QString &text)
{
    Q_EMIT StatusTextChanged(text.isEmpty()
            ? m_summary.Describe(SelectedRowCount(), SelectedEntryCount(), FirstSelectedEntry())
            : text);
}
