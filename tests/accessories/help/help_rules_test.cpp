// What may be shown as help, and where the window stands.
#include "accessories/help/help_rules.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(HelpRules, Only_pages_below_the_help_folder_are_shown) {
    QTemporaryDir home;
    const QString folder = home.filePath(u"help"_s);
    QDir().mkpath(folder + u"/sub dir.html"_s);
    QDir().mkpath(home.filePath(u"help-2"_s));
    for (const QString& name : {u"help/a.html"_s, u"help/sub dir.html/b.HTML"_s,
                                u"help/100%25.html"_s, u"secret.html"_s, u"help-2/c.html"_s})
        ASSERT_TRUE(QFile(home.filePath(name)).open(QIODevice::WriteOnly));
    QFile::link(home.filePath(u"secret.html"_s), folder + u"/link.html"_s);
    QFile::link(home.path(), folder + u"/up"_s);
    QFile::link(folder + u"/a.html"_s, folder + u"/inner.html"_s);
    const QString base = u"file://"_s + folder;

    const struct {
        QString url;
        bool shown;
    } rows[] = {
        {base + u"/a.html"_s, true},
        {base + u"/sub%20dir.html/b.HTML"_s, true},
        {base + u"/inner.html"_s, true},
        {base + u"/100%2525.html"_s, true},
        {base + u"/missing.html"_s, false},
        {base + u"/sub%20dir.html"_s, false},
        {base + u"/../secret.html"_s, false},
        {base + u"/%2e%2e/secret.html"_s, false},
        {base + u"/..%2Fsecret.html"_s, false},
        {base + u"/..\\secret.html"_s, false},
        {base + u"/link.html"_s, false},
        {base + u"/up/secret.html"_s, false},
        {base + u"/a.html%00.html"_s, false},
        {base + u"-2/c.html"_s, false},
        {u"file://elsewhere"_s + folder + u"/a.html"_s, false},
        {u"file:////elsewhere/help/a.html"_s, false},
        {folder + u"/a.html"_s, false},
        {u"http://localhost"_s + folder + u"/a.html"_s, false},
        {u"a.html"_s, false},
    };
    for (const auto& row : rows)
        EXPECT_EQ(Is_HelpPage(folder, QUrl(row.url)), row.shown) << row.url.toStdString();
    EXPECT_FALSE(Is_HelpPage(QString(), QUrl(u"file:///etc/a.html"_s)));
}

TEST(HelpRules, The_viewer_stands_below_the_toolbar_and_on_the_screen) {
    const struct {
        const char* name;
        ToolbarRect toolbar;
        QPoint place;
    } rows[] = {
        {"below", {400, 0, 733, 20}, {400, 30}},
        {"moved in at the right edge", {1200, 0, 1280, 20}, {980, 30}},
        {"above where there is no room below", {10, 1000, 343, 1020}, {10, 530}},
        {"at the bottom where there is room on neither side", {10, 400, 343, 600}, {10, 564}},
        {"a toolbar that is off the screen", {-50, -30, 283, -10}, {0, 0}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(Help_Place(row.toolbar, {300, 460}, {0, 0, 1280, 1024}), row.place) << row.name;
    EXPECT_EQ(Help_Place({-400, -20, -67, 0}, {300, 460}, {-800, -600, 800, 600}),
              QPoint(-400, -490));
}

} // namespace
