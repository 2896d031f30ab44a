#pragma once

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QTreeView>
#include <QTreeWidget>

#include "FirstPage.h"
#include "desktop/PaperPdf.h"
#include "desktop/QtText.h"
#include "desktop/ReviewPanel.h"
#include "gui/Session.h"
#include "particulars/frmAnnexureA.h"
#include "review/Review.h"

namespace plandesk::test {

/// A session with a new proposal, and what there is to see of its review.
struct ReviewSession : Session {
    explicit ReviewSession(bool complete = false) : Session({1366, 768}) {
        press("mnuNew");
        if (complete)
            fillFirstPage(form<frmAnnexureA>());
        settle();
    }

    desktop::ReviewPanel* panel() { return window.findChild<desktop::ReviewPanel*>(); }
    QTreeView& list() { return *window.findChild<QTreeView*>("reviewList"); }
    QTreeWidget& map() { return *window.findChild<QTreeWidget*>("reviewMap"); }
    QLineEdit& field() { return *window.findChild<QLineEdit*>("reviewSearch"); }
    QLabel& counts() { return *window.findChild<QLabel*>("reviewCounts"); }
    QString notice() { return window.findChild<QLabel*>("reviewNotice")->text(); }
    QAction& entry(const char* name) { return *window.findChild<QAction*>(name); }

    void key(Qt::Key pressed, Qt::KeyboardModifiers with = {}) {
        QWidget* has = QApplication::focusWidget();
        QTest::keyClick(has && has->window() == &window ? has : &window, pressed, with);
        settle();
    }
    /// Opens the panel and waits for its first look.
    void open() {
        key(Qt::Key_F9);
        QTRY_VERIFY(counts().isVisible());
    }
    /// The lines of a group as they are read.
    QStringList lines(int group) {
        QStringList all;
        const QModelIndex parent = list().model()->index(group, 0);
        for (int row = 0; row < list().model()->rowCount(parent); ++row)
            all += list().model()->index(row, 0, parent).data().toString();
        return all;
    }
    QString title(int group) { return list().model()->index(group, 0).data().toString(); }
    std::string focus() {
        const Control* focused = proposal.screen.focused();
        return focused ? focused->form().name() + "." + focused->key() : "";
    }
    bool keyboardInForm() {
        const Control* focused = proposal.screen.focused();
        const QWidget* shown = focused ? window.forms().viewOf(focused->form())->widgetOf(*focused) : nullptr;
        const QWidget* has = QApplication::focusWidget();
        return shown && has && (shown == has || shown->isAncestorOf(has));
    }
};

}  // namespace plandesk::test
