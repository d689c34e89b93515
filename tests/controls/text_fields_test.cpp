#include "controls/text_fields.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class TextFields : public testing::Test {
protected:
    TextFields() {
        window.resize(200, 120);
        memo = new MemoField(&window);
        memo->setGeometry(10, 10, 180, 60);
        line = new QLineEdit(&window);
        line->setGeometry(10, 90, 180, 22);
        window.show();
        QApplication::setActiveWindow(&window);
    }
    ~TextFields() override { QApplication::clipboard()->clear(); }
    static void Paste(QWidget* field, QMimeData* data) {
        field->setFocus();
        QApplication::clipboard()->setMimeData(data);
        QTest::keySequence(field, QKeySequence::Paste);
    }
    static void Paste_Text(QWidget* field, const QString& text) {
        auto* data = new QMimeData;
        data->setText(text);
        Paste(field, data);
    }
    // What the source is told has become of the data.
    Qt::DropAction Drop(const QMimeData& data) {
        QDragEnterEvent enters({5, 5}, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                               Qt::NoModifier);
        QApplication::sendEvent(memo->viewport(), &enters);
        QDropEvent event({5, 5}, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                         Qt::NoModifier);
        event.setDropAction(Qt::MoveAction);
        QApplication::sendEvent(memo->viewport(), &event);
        return event.isAccepted() ? event.dropAction() : Qt::IgnoreAction;
    }
    QString Said() const {
        const auto* word = window.findChild<QLabel*>(u"FieldWord"_s);
        if (word == nullptr || !word->isVisible())
            return {};
        EXPECT_TRUE(window.rect().contains(word->geometry()));
        return word->text();
    }

    QWidget window;
    MemoField* memo = nullptr;
    QLineEdit* line = nullptr;
};

TEST_F(TextFields, Data_without_a_text_changes_nothing_however_it_comes) {
    memo->setPlainText(u"kept"_s);
    QMimeData picture;
    picture.setImageData(QImage(2, 2, QImage::Format_RGB32));
    Paste(memo, new QMimeData);
    const QMimeData nothing;
    EXPECT_EQ(Drop(nothing), Qt::IgnoreAction);
    EXPECT_EQ(Drop(picture), Qt::IgnoreAction);
    EXPECT_EQ(memo->Text(), u"kept"_s);
    EXPECT_EQ(Said(), QString());
}

TEST_F(TextFields, What_is_too_long_is_refused_whole_and_with_a_word) {
    memo->Set_Limit([](const QString& text) { return text.size() <= 8; });
    Limit_Field(
        line, [](const QString& text) { return text.size() <= 8; }, u"Eight at most"_s);
    const auto Text = [this](QWidget* field) {
        return field == memo ? memo->Text() : line->text();
    };
    for (QWidget* field : {static_cast<QWidget*>(memo), static_cast<QWidget*>(line)}) {
        Paste_Text(field, u"12345678"_s);
        EXPECT_EQ(Said(), QString());
        Paste_Text(field, u"9"_s);
        EXPECT_EQ(Said(), field == memo ? Too_Long_Word() : u"Eight at most"_s);
        QTest::keyClick(field, Qt::Key_Backspace);
        EXPECT_EQ(Said(), QString());
        QTest::keyClicks(field, u"ab"_s);
        EXPECT_NE(Said(), QString());
        EXPECT_EQ(Text(field), u"1234567a"_s);
    }
    QMimeData more;
    more.setText(u"more"_s);
    EXPECT_EQ(Drop(more), Qt::IgnoreAction);
    EXPECT_EQ(memo->Text(), u"1234567a"_s);
}

TEST_F(TextFields, A_dropped_file_gives_its_name_and_stays_where_it_is) {
    QMimeData file;
    file.setUrls({QUrl(u"file:///tmp/a"_s)});
    EXPECT_EQ(Drop(file), Qt::CopyAction);
    EXPECT_TRUE(memo->Text().contains(u"/tmp/a"_s));
}

} // namespace
