// Replays transcripts of what an operator does in the viewer's window. A line "$ VERB ARGUMENTS" is
// done in the window on a copy of the sample library; the lines after it are what has changed on
// the window by then. After " | " stand the answers to the dialogs that it opens, each of them
// steps like "FIELD=VALUE" (no name: the only text box) and the button or menu entry to press.
// Where the answer differs, the new transcript is left in the present folder with the ending
// ".new".

#include "Test.h"
#include "apps/viewer/PlateSession.h"
#include "apps/viewer/WindowState.h"
#include "apps/viewer/panels/LibraryPanel.h"
#include "apps/viewer/widgets/ColorButton.h"
#include "hosts/qt/Units.h"
#include "library/LineDifference.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDropEvent>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QSettings>
#include <QSpinBox>
#include <QTest>
#include <QTimer>

namespace zorvane::viewer {
namespace {

/// Stands for "{grid}" in a file that a transcript writes.
constexpr const char* kGrid = "ROWS 2\nCOLS 3\nXPITCH 9\nYPITCH 9\nXOVERALL 40\nYOVERALL 30\n"
                              "WELL Drop\nXOFFSET 9\nYOFFSET 9\nWELLSIZEX 4\nWELLSIZEY 4\n";

String Bytes(const String& file) {
    std::ifstream input(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(input), {}};
}

template <class Child>
Child& Find(const QWidget& parent, const QString& name) {
    Child* found = nullptr;
    for (auto* child : parent.findChildren<Child*>())
        if (NameOf(*child) == name && (!found || child->isVisible())) found = child;
    if (!found) throw std::runtime_error("there is no " + name.toStdString());
    return *found;
}

void Fill(QWidget& field, const QString& value) {
    if (auto* whole = qobject_cast<QSpinBox*>(&field)) whole->setValue(value.toInt());
    if (auto* number = qobject_cast<QDoubleSpinBox*>(&field)) number->setValue(value.toDouble());
    if (auto* color = qobject_cast<ColorButton*>(&field)) emit color->chosen(QColor(value));
    if (auto* list = qobject_cast<QComboBox*>(&field)) {
        list->setCurrentText(value);
        emit list->activated(list->currentIndex());
    }
    if (auto* edit = qobject_cast<QLineEdit*>(&field)) {
        edit->selectAll();
        QTest::keyClicks(edit, value);
    }
}

/// Runs the commands of one transcript in a folder of its own.
class Operator {
  public:
    Operator() {
        std::filesystem::copy_file(ZORVANE_SAMPLE_LIBRARY, folder_.File("sample.dat"));
        QDir::setCurrent(QString::fromStdString(folder_.Path().string()));
        QSettings().clear();
        window_.emplace().show();
        window_->OpenLibrary("sample.dat");
        QApplication::processEvents();
        before_ = StateOf(*window_);
        QObject::connect(&dialogs_, &QTimer::timeout, [this] { LookForDialog(); });
    }
    ~Operator() { QDir::setCurrent(home_); }

    QString Do(const QString& line) {
        answers_ = line.split(" | ");
        report_.clear();
        dialogs_.start(1);
        try {
            Run(answers_.takeFirst());
        } catch (const std::exception& error) {
            report_ += QString("error: %1\n").arg(error.what());
        }
        for (int times = 0; times < 3 || QApplication::activeModalWidget(); ++times)
            QTest::qWait(2);
        dialogs_.stop();
        for (const QString& answer : answers_)
            report_ += "not asked: " + answer + "\n";
        ReportChanges();
        return report_;
    }

  private:
    void Run(const QString& command) {
        const QString verb = command.section(' ', 0, 0);
        const QString rest = command.section(' ', 1);
        const QString file = rest.section(' ', 0, 0);
        Plate& plate = window_->Session().Control();
        if (verb == "open") window_->OpenLibrary(rest);
        if (verb == "restart") Restart();
        if (verb == "size")
            window_->resize(rest.section(' ', 0, 0).toInt(), rest.section(' ', 1).toInt());
        if (verb == "menu") Trigger(rest);
        if (verb == "press")
            QTest::mouseClick(&Find<QAbstractButton>(*window_, rest), Qt::LeftButton);
        if (verb == "click") Find<QAbstractButton>(*window_, rest).click();
        if (verb == "set")
            Fill(Find<QWidget>(*window_, rest.section('=', 0, 0)), rest.section('=', 1));
        if (verb == "key") Type(rest);
        if (verb == "drag") Drag(rest);
        if (verb == "drop") Drop(rest.split(' '));
        if (verb == "choose") Choose(rest);
        if (verb == "page") plate.PageChosen(rest.toShort());
        if (verb == "close") report_ += window_->close() ? "closed\n" : "stays\n";
        if (verb == "write") {
            QString text = rest.section(' ', 1).replace("{grid}", kGrid);
            folder_.Put(file.toStdString(), text.replace("\\n", "\n").toStdString());
        }
        if (verb == "append") {
            std::ofstream(file.toStdString(), std::ios::app)
                << rest.section(' ', 1).toStdString() << "\n";
        }
        if (verb == "remove") std::filesystem::remove(file.toStdString());
        if (verb == "compare") {
            report_ += QString::fromStdString(UnifiedDifference(Bytes(ZORVANE_SAMPLE_LIBRARY),
                                                                Bytes(file.toStdString()), "file"));
        }
        if (verb == "show") report_ += QString::fromStdString(Bytes(file.toStdString()));
        if (verb == "scale") report_ += QString::number(double{plate.DrawingScale()}) + "\n";
        if (verb == "state") before_.clear();
        if (verb == "focus") report_ += NameOf(*window_->focusWidget()) + "\n";
    }

    /// Ends the program and starts it again.
    void Restart() {
        window_->close();
        window_.emplace().show();
        window_->OpenLastLibrary();
        QApplication::processEvents();
    }

    void Trigger(const QString& text) {
        for (auto* action : window_->findChildren<QAction*>())
            if (NameOf(*action) == text) return action->trigger();
        throw std::runtime_error("no action");
    }

    /// "FIELD: KEY KEY": keys that the operator presses in a field.
    void Type(const QString& typed) {
        QWidget& field = Find<QWidget>(*window_, typed.section(": ", 0, 0));
        field.setFocus();
        for (const QString& key : typed.section(": ", 1).split(' '))
            QTest::keySequence(&field, QKeySequence(key));
    }

    /// Presses the left button on one well and releases it on another.
    void Drag(const QString& wells) {
        PlateWidget& widget = window_->Session().Widget();
        const auto middle = [&](const QString& well) {
            const Surface& surface = widget.plate().Elements();
            const QPointF origin = ToPixels(surface.fraPlate.box).topLeft();
            return (origin + ToPixels(surface.WellRim.at(well.toUInt()).box).center()).toPoint();
        };
        QTest::mousePress(&widget, Qt::LeftButton, {}, middle(wells.section(' ', 0, 0)));
        QTest::mouseMove(&widget, middle(wells.section(' ', -1)));
        QTest::mouseRelease(&widget, Qt::LeftButton, {}, middle(wells.section(' ', -1)));
    }

    void Drop(const QStringList& files) {
        QList<QUrl> urls;
        for (const QString& file : files) {
            const QFileInfo local(file);
            urls += file.contains(':') ? QUrl(file) : QUrl::fromLocalFile(local.absoluteFilePath());
        }
        QMimeData data;
        data.setUrls(urls);
        QDragEnterEvent enter({}, Qt::CopyAction, &data, Qt::LeftButton, {});
        enter.ignore();
        QApplication::sendEvent(&*window_, &enter);
        report_ += enter.isAccepted() ? "" : "refused\n";
        if (!enter.isAccepted()) return;
        QDropEvent drop({}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&*window_, &drop);
    }

    void Choose(const QString& plate) {
        const LibraryListing listing =
            ListLibrary(before_.value("title").section(" – ", 1, 1).toStdString());
        int index = 0;
        for (const LibraryEntry& entry : listing.plates) {
            if (entry.name == plate.toStdString())
                window_->findChild<LibraryPanel*>()->Choose(index);
            ++index;
        }
    }

    void LookForDialog() {
        if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget()))
            return Press(*menu);
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isVisible()) return;
        report_ += dialog->windowTitle() + ":\n";
        if (const auto* box = qobject_cast<QMessageBox*>(dialog)) {
            report_ += "  " + box->text() + "\n";
        } else if (qobject_cast<QFileDialog*>(dialog)) {
            report_ += "  " + dialog->findChild<QLineEdit*>()->text() + "\n";
        } else {
            for (const auto& [name, value] : FieldsOf(*dialog).asKeyValueRange())
                report_ += "  " + name + ": " + value + "\n";
        }
        const QString answer = answers_.isEmpty() ? QString("OK") : answers_.takeFirst();
        for (const QString& step : answer.split("; "))
            Answer(*dialog, step);
    }

    void Press(QMenu& menu) {
        const QString entry = answers_.isEmpty() ? QString() : answers_.takeFirst();
        for (auto* action : menu.actions())
            if (action->text().remove('&') == entry) menu.setActiveAction(action);
        QTest::keyClick(&menu, menu.activeAction() ? Qt::Key_Return : Qt::Key_Escape);
    }

    void Answer(QDialog& dialog, const QString& step) {
        if (step.startsWith('=')) return dialog.findChild<QLineEdit*>()->setText(step.mid(1));
        if (step.contains('='))
            return Fill(Find<QWidget>(dialog, step.section('=', 0, 0)), step.section('=', 1));
        for (auto* button : dialog.findChildren<QAbstractButton*>())
            if (button->text().remove('&') == step) return button->click();
        report_ += "no button " + step + "\n";
        dialog.reject();
    }

    void ReportChanges() {
        const Shown now = StateOf(*window_);
        for (const auto& [name, value] : now.asKeyValueRange())
            if (before_.value(name) != value) report_ += name + ": " + value + "\n";
        for (const auto& [name, value] : before_.asKeyValueRange())
            if (!value.isEmpty() && !now.contains(name)) report_ += name + ": -\n";
        before_ = now;
    }

    const QString home_ = QDir::currentPath();
    TempFolder folder_;
    std::optional<MainWindow> window_;
    QTimer dialogs_;
    QStringList answers_;
    QString report_;
    Shown before_;
};

class WindowTranscript : public testing::TestWithParam<String> {};

TEST_P(WindowTranscript, IsReplayed) {
    const String recorded = Bytes(GetParam());
    QString replayed;
    {
        Operator user;
        for (const QString& line : QString::fromStdString(recorded).split('\n')) {
            if (line.startsWith('#') || line.startsWith('$')) replayed += line + "\n";
            if (line.startsWith("$ ")) replayed += user.Do(line.mid(2));
        }
    }
    if (replayed.toStdString() == recorded) return;
    const String name = std::filesystem::path(GetParam()).stem().string();
    std::ofstream(name + ".new", std::ios::binary) << replayed.toStdString();
    ADD_FAILURE() << UnifiedDifference(recorded, replayed.toStdString(), name);
}

std::vector<String> Transcripts() {
    std::vector<String> files;
    for (const auto& file : std::filesystem::directory_iterator(ZORVANE_WINDOW_TRANSCRIPTS))
        files.push_back(file.path().string());
    std::sort(files.begin(), files.end());
    return files;
}

INSTANTIATE_TEST_SUITE_P(Viewer, WindowTranscript, testing::ValuesIn(Transcripts()),
                         [](const auto& test) {
                             String name = std::filesystem::path(test.param).stem().string();
                             std::replace(name.begin(), name.end(), '-', '_');
                             return name;
                         });

} // namespace
} // namespace zorvane::viewer
