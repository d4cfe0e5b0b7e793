// SPDX-License-Identifier: MIT
#include "document/win32_doc.h"
#include "platform/ui/long_line_edit.h"
#include "platform/ui/number_field.h"
#include "shell/ui/list_properties_dialog.h"
#include "shell/ui/settings_dialog.h"
#include "support/test_document.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>

class SettingsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_settings = {}; }

    void storedByOkAndApplyAlone()
    {
        struct End
        {
            bool apply;
            QDialogButtonBox::StandardButton button;
            bool stored;
        };
        for (const auto &[apply, button, stored] : {End{false, QDialogButtonBox::Ok, true},
                 {false, QDialogButtonBox::Cancel, false}, {true, QDialogButtonBox::Cancel, true}}) {
            m_settings = {};
            m_settings.misc.fontSize = 700; // The file of settings knows no upper bound.
            CSettingsDialog dialog(m_services);
            QSignalSpy told(&m_changes, &CSettingsChanges::Changed);
            Find<QCheckBox>(dialog, "useOtherFont").click();
            QCOMPARE(Find<CNumberField>(dialog, "fontSize").value(), 200);
            Find<QComboBox>(dialog, "fontName").setEditText(u"No Such Font"_s);
            Find<QCheckBox>(dialog, "showNotes").click();
            Find<QCheckBox>(dialog, "lang1first").click();
            Find<CLongLineEdit>(dialog, "author").setText(u"Ann"_s);
            QCOMPARE(told.count(), 0);
            if (apply) {
                Press(dialog, QDialogButtonBox::Apply);
                Find<QCheckBox>(dialog, "lang1first").click();
            }
            Press(dialog, button);
            QCOMPARE(m_settings.misc.fontSize, stored ? 200 : 700);
            QCOMPARE(m_settings.misc.fontName == u"No Such Font"_s, stored);
            QCOMPARE(m_settings.editor.showNotes, !stored);
            QCOMPARE(m_settings.editor.lang1first, !stored);
            QCOMPARE(m_settings.editor.author == u"Ann"_s, stored);
            QCOMPARE(told.count(), stored ? 2 : 0);
        }
    }

    void storesNothingOfOtherWindows()
    {
        CSettingsDialog dialog(m_services);
        m_settings.misc.languageFile = u"english.ordmod"_s; // Chosen in the window that a button opens.
        m_settings.misc.openOnClosing = true;
        Press(dialog, QDialogButtonBox::Ok);
        QCOMPARE(m_settings.misc.languageFile, u"english.ordmod"_s);
        QVERIFY(m_settings.misc.openOnClosing);
    }

    void reset()
    {
        m_settings.misc.fontSize = 30;
        CSettingsDialog dialog(m_services);
        dialog.show();
        Find<QPushButton>(dialog, "reset").click();
        QCOMPARE(m_settings.misc.fontSize, 11);
        QTRY_COMPARE(Find<CNumberField>(dialog, "fontSize").value(), 11);
        Press(dialog, QDialogButtonBox::Cancel);
        QCOMPARE(m_settings.misc.fontSize, 11);
    }

    void previews()
    {
        m_settings.editor.language1 = u"Svenska"_s;
        m_settings.editor.language2.clear();
        m_settings.editor.standardComments = u"%nwords %language1"_s;
        m_settings.editor.standardFilename = u"%comments/%language2"_s;
        CSettingsDialog dialog(m_services);
        QVERIFY(Find<QLabel>(dialog, "commentsPreview").text().contains(u"0 Svenska"_s));
        QVERIFY(Find<QLabel>(dialog, "fileNamePreview").text().contains(u"0 SvenskaEngelska"_s));
        Find<CLongLineEdit>(dialog, "language1").setText(u"Tyska"_s);
        QVERIFY(Find<QLabel>(dialog, "fileNamePreview").text().contains(u"0 TyskaEngelska"_s));
    }

    void propertiesAreOneStep()
    {
        TestDocument test;
        CWin32Doc &document = test.document;
        CListPropertiesDialog dialog(CListPropertiesForm(document, m_texts));
        const int steps = document.UndoCount();
        Press(dialog, QDialogButtonBox::Ok);
        QCOMPARE(document.UndoCount(), steps);

        Find<CLongLineEdit>(dialog, "language1").setText(u"  Franska "_s);
        Find<CLongLineEdit>(dialog, "comments").setText(u"a\u0001b"_s);
        Find<QCheckBox>(dialog, "adapt1").click();
        Find<CLongLineEdit>(dialog, "question1").setText(u"%word?"_s);
        Find<QCheckBox>(dialog, "adapt2").click();
        Press(dialog, QDialogButtonBox::Ok);
        QCOMPARE(document.UndoCount(), steps + 1);
        QCOMPARE(document.List().GetLanguage(0), u"Franska"_s);
        QCOMPARE(document.List().GetComments(), u"a b"_s);
        QVERIFY(document.List().GetAdaptQuestion(0));
        QVERIFY(!document.List().GetAdaptQuestion(1)); // It has no text.
        document.Undo();
        QVERIFY(!document.List().GetAdaptQuestion(0) && document.List().GetLanguage(0) != u"Franska"_s);
        document.Redo();
        QCOMPARE(document.List().GetQuestionTemplate(0), u"%word?"_s);
    }

    void questions()
    {
        TestDocument test;
        CListPropertiesForm empty(test.document, m_texts);
        QVERIFY(empty.Example(0).isEmpty());
        test.document.Change([](CWordList &list) { list.Insert(MakeEntry(u"hus|house"_s)); });
        CListPropertiesForm form(test.document, m_texts);
        form.languages = {u"A"_s, u"B & C"_s};
        form.questionTemplate[1] = u"%from: %word"_s;
        QVERIFY(form.Example(1).contains(u"\"house\""_s));
        form.adaptQuestion[1] = true;
        QVERIFY(form.Example(1).endsWith(u"B & C: house"_s));
        QVERIFY(form.AdaptCaption(1).contains(u"B && C"_s));
    }

private:
    template<class Widget>
    static Widget &Find(QWidget &window, const char *name)
    {
        return *window.findChild<Widget *>(QString::fromLatin1(name));
    }
    static void Press(QWidget &window, QDialogButtonBox::StandardButton button)
    {
        Find<QDialogButtonBox>(window, "buttons").button(button)->click();
    }

    Settings m_settings;
    CSettingsChanges m_changes;
    CTexts m_texts;
    SettingsFormServices m_services = {m_settings, m_changes, m_texts, [] { return QDate(2024, 5, 17); },
        [this] {
            m_settings.misc.fontSize = 11;
            return true;
        },
        {}, {}, {}};
};

QTEST_MAIN(SettingsTest)
#include "settings_test.moc"
