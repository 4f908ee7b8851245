#!/usr/bin/env python3
"""Tests of layers.py: each forbidden thing, alone in a tree of its own, is found, and what is allowed is not."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

import layers

SCRIPT = Path(__file__).with_name("layers.py")


class Tree(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)

    def write(self, path, *lines):
        file = self.root / path
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text("\n".join(lines) + "\n", encoding="utf-8")

    def violations(self):
        return [str(violation) for violation in layers.check_tree(self.root)[0]]

    def assert_violation(self, expected):
        self.assertEqual(self.violations(), [expected])


class Includes(Tree):
    def test_a_tree_that_keeps_to_the_plan_is_clean(self):
        self.write("base/signal.h", "#include <functional>", "#include <fmt/format.h>")
        self.write("platform/api/clock.h", '#include "base/signal.h"')
        self.write("core/daily_store.h", '#include "platform/api/clock.h"', "#include <simdjson.h>")
        self.write("core/daily_store.cpp", '#include "core/daily_store.h"')
        self.write("platform/x11/x11_clock.cpp", '#include "platform/api/clock.h"', "#include <xcb/xcb.h>",
                   "#include <QTimer>", "#include <sys/stat.h>")
        self.write("app/services.h", '#include "core/daily_store.h"')
        self.write("app/desktop/application.h", '#include "app/services.h"', "#include <QQuickView>")
        self.write("main.cpp", '#include "app/desktop/application.h"')
        self.assertEqual(self.violations(), [])

    def test_base_must_not_know_the_seam(self):
        self.write("platform/api/clock.h")
        self.write("base/a.h", '#include "platform/api/clock.h"')
        self.assert_violation('base/a.h:1: base must not know platform/api ("platform/api/clock.h")')

    def test_the_domain_must_not_know_qt(self):
        self.write("core/a.h", "", "#include <QString>")
        self.assert_violation("core/a.h:2: core must not know qt (<QString>)")

    def test_the_domain_must_not_know_qt_in_quotes_either(self):
        self.write("core/a.h", '#include "QString"')
        self.assert_violation('core/a.h:1: includes "QString", which is in no room')

    def test_the_domain_must_not_know_x11(self):
        self.write("core/a.h", "#include <xcb/screensaver.h>")
        self.assert_violation("core/a.h:1: core must not know xcb (<xcb/screensaver.h>)")

    def test_the_domain_must_not_know_the_system(self):
        self.write("core/a.h", "#include <unistd.h>")
        self.assert_violation("core/a.h:1: core must not know system (<unistd.h>)")

    def test_the_domain_must_not_know_a_domain_room_above_it(self):
        self.write("projects/p.h")
        self.write("core/a.h", '#include "projects/p.h"')
        self.assert_violation('core/a.h:1: core must not know projects ("projects/p.h")')

    def test_the_domain_may_know_a_domain_room_below_it(self):
        self.write("core/a.h")
        self.write("projects/p.h", '#include "core/a.h"')
        self.assertEqual(self.violations(), [])

    def test_the_seam_must_not_know_qt(self):
        self.write("platform/api/a.h", "#include <QObject>")
        self.assert_violation("platform/api/a.h:1: platform/api must not know qt (<QObject>)")

    def test_the_native_platform_must_not_know_the_domain(self):
        self.write("core/a.h")
        self.write("platform/linux/b.cpp", '#include "core/a.h"')
        self.assert_violation('platform/linux/b.cpp:1: platform/linux must not know core ("core/a.h")')

    def test_the_folders_of_the_platform_must_not_know_one_further_from_the_kernel(self):
        self.write("platform/x11/a.h")
        self.write("platform/freedesktop/b.h", '#include "platform/x11/a.h"')
        self.write("platform/posix/c.h", '#include "platform/freedesktop/b.h"')
        self.assertEqual(self.violations(), [
            'platform/freedesktop/b.h:1: platform/freedesktop must not know platform/x11 ("platform/x11/a.h")',
            'platform/posix/c.h:1: platform/posix must not know platform/freedesktop ("platform/freedesktop/b.h")'])

    def test_only_one_folder_of_the_platform_knows_the_display_server(self):
        self.write("platform/freedesktop/a.cpp", "#include <xcb/xcb.h>")
        self.assert_violation("platform/freedesktop/a.cpp:1: platform/freedesktop must not know xcb (<xcb/xcb.h>)")

    def test_the_shell_must_not_know_the_native_platform(self):
        self.write("platform/linux/b.h")
        self.write("shell/a.cpp", '#include "platform/linux/b.h"')
        self.assert_violation('shell/a.cpp:1: shell must not know platform/linux ("platform/linux/b.h")')

    def test_the_shell_must_not_know_qt(self):
        self.write("shell/a.cpp", "#include <QString>")
        self.assert_violation("shell/a.cpp:1: shell must not know qt (<QString>)")

    def test_the_shell_must_not_know_its_views(self):
        self.write("shell/views/clock_presenter.h")
        self.write("shell/a.cpp", '#include "shell/views/clock_presenter.h"')
        self.assert_violation('shell/a.cpp:1: shell must not know shell/views ("shell/views/clock_presenter.h")')

    def test_nothing_but_the_program_knows_the_composition_root(self):
        self.write("app/services.h")
        self.write("shell/windows/a.cpp", '#include "app/services.h"')
        self.assert_violation('shell/windows/a.cpp:1: shell/windows must not know app ("app/services.h")')

    def test_the_kit_of_the_screen_must_not_know_the_domain(self):
        self.write("core/settings.h")
        self.write("ui/style/a.cpp", '#include "core/settings.h"')
        self.assert_violation('ui/style/a.cpp:1: ui must not know core ("core/settings.h")')

    def test_the_domains_views_know_the_kit_of_the_screen(self):
        self.write("ui/style/a.h", "#include <QColor>")
        self.write("core/views/a.cpp", '#include "ui/style/a.h"')
        self.assertEqual(self.violations(), [])

    def test_views_must_not_know_another_room(self):
        self.write("projects/p.h")
        self.write("core/views/a.cpp", '#include "projects/p.h"')
        self.assert_violation('core/views/a.cpp:1: core/views must not know projects ("projects/p.h")')

    def test_nothing_but_tests_knows_the_fakes(self):
        self.write("platform/fake/f.h")
        self.write("shell/a.cpp", '#include "platform/fake/f.h"')
        self.assert_violation('shell/a.cpp:1: shell must not know platform/fake ("platform/fake/f.h")')

    def test_a_header_of_ours_between_angle_brackets_is_read_too(self):
        self.write("projects/p.h")
        self.write("core/a.h", "#include <projects/p.h>")
        self.assert_violation('core/a.h:1: core must not know projects ("projects/p.h")')

    def test_an_unknown_library_is_no_library_of_the_plan(self):
        self.write("base/a.h", "#include <boost/any.hpp>")
        self.assert_violation("base/a.h:1: <boost/any.hpp> is no library of the plan")

    def test_blanks_before_and_after_the_hash_do_not_hide_an_include(self):
        self.write("core/a.h", "  #  include   <QString>")
        self.assert_violation("core/a.h:1: core must not know qt (<QString>)")

    def test_an_include_in_a_comment_is_none(self):
        self.write("core/a.h", "// #include <QString>", "/*", "#include <QString>", "*/")
        self.assertEqual(self.violations(), [])

    def test_a_file_in_no_room_is_told(self):
        self.write("helpers/a.h")
        self.assert_violation("helpers/a.h:1: is in no room")


class Bans(Tree):
    def assert_banned(self, code, path="core/a.cpp"):
        self.write(path, code)
        found = self.violations()
        self.assertEqual(len(found), 1, found)
        self.assertTrue(found[0].startswith(f"{path}:1: "), found)

    def assert_allowed(self, code, path="core/a.cpp"):
        self.write(path, code)
        self.assertEqual(self.violations(), [])

    def test_asking_the_time_past_the_seam(self):
        for code in (
            "auto t = std::chrono::system_clock::now();",
            "auto t = steady_clock::now();",
            "auto t = std::time(nullptr);",
            "auto t = time(nullptr);",
            "auto t = time(0);",
            "clock_gettime(CLOCK_REALTIME, &t);",
            "localtime_r(&t, &broken);",
            "auto t = mktime(&broken);",
            "auto t = QDateTime::currentDateTime();",
            "#include <ctime>",
        ):
            with self.subTest(code=code):
                self.assert_banned(code)

    def test_reaching_the_disk_past_the_seam(self):
        for code in (
            'FILE* f = fopen("a", "r");',
            'std::ofstream out("a");',
            'std::ifstream in("a");',
            "#include <filesystem>",
            "#include <fstream>",
            "auto p = std::filesystem::path();",
            "QSettings settings;",
            "QSaveFile file;",
        ):
            with self.subTest(code=code):
                self.assert_banned(code)

    def test_reading_the_environment(self):
        self.assert_banned('auto home = std::getenv("HOME");')
        self.assert_banned('auto home = qgetenv("HOME");')

    def test_starting_a_process(self):
        self.assert_banned("QProcess process;")

    def test_reaching_the_network(self):
        for code in ("QNetworkAccessManager manager;", "QTcpSocket socket;", "platform::HttpClient& http;"):
            self.assert_banned(code, "shell/windows/a.cpp")

    def test_the_speed_test_reaches_it_through_the_seam(self):
        self.write("system/a.h", "platform::HttpClient& http;")
        self.write("platform/api/http_client.h", "class HttpClient {};")
        self.write("shell/windows/no_network.cpp", "class Refusing : public QNetworkAccessManager {};")
        self.assertEqual(self.violations(), [])

    def test_the_shell_is_bound_as_well(self):
        self.assert_banned("auto t = std::chrono::steady_clock::now();", "shell/a.cpp")

    def test_the_fakes_are_bound_as_well(self):
        self.assert_banned("auto t = std::chrono::steady_clock::now();", "platform/fake/a.cpp")

    def test_the_native_platform_is_free(self):
        self.assert_allowed("auto t = std::chrono::system_clock::now();", "platform/linux/a.cpp")

    def test_what_only_looks_alike_is_allowed(self):
        self.assert_allowed("const hh_mm_ss time(seconds); clock.now(); clock_.monotonic(); lifetime(0); a.time(0);")

    def test_words_in_comments_and_texts_are_allowed(self):
        self.assert_allowed('auto s = "getenv fopen"; // system_clock\n/* steady_clock */ auto r = R"(QSettings)";')

    def test_a_digit_separator_does_not_open_a_literal(self):
        self.assert_banned("auto n = 1'000; auto t = steady_clock::now(); auto m = 2'000;")


class Views(Tree):
    def test_a_view_may_import_qt_quick_and_our_own_modules(self):
        self.write("shell/views/Clock.qml", "import QtQuick", "import QtQuick.Shapes", "import Tidewatch.Ui",
                   'import "parts"')
        self.assertEqual(self.violations(), [])

    def test_a_view_must_not_import_what_reaches_the_machine(self):
        self.write("shell/views/Clock.qml", "import QtQuick", "import Qt.labs.settings")
        self.assert_violation("shell/views/Clock.qml:2: imports Qt.labs.settings")

    def test_a_view_must_not_ask_the_time(self):
        self.write("shell/views/Clock.qml", "Item { property var now: new Date() }")
        self.assert_violation("shell/views/Clock.qml:1: new Date asks the time past platform::Clock")

    def test_a_domain_room_holds_no_views(self):
        self.write("core/Clock.qml", "Item {}")
        self.assert_violation("core/Clock.qml:1: core holds no views")


class PlainWords(Tree):
    """Names come from outside: what is markup in them must stay words."""

    def view(self, *lines):
        self.write("shell/views/Clock.qml", *lines)

    def assert_guesses(self, *lines, at=1, what="Text"):
        self.view(*lines)
        self.assert_violation(f"shell/views/Clock.qml:{at}: {what} may take words for markup and fetch its pictures")

    def test_a_text_that_guesses_its_format(self):
        self.assert_guesses("Item {", "    Text { text: name }", "}", at=2)

    def test_the_other_types_that_guess(self):
        for what in ("TextEdit", "TextArea", "Label"):
            with self.subTest(what=what):
                self.assert_guesses(f"{what} {{ text: name }}", what=what)

    def test_a_text_by_a_name_of_its_import_guesses_too(self):
        self.assert_guesses("Q.Text { text: name }")

    def test_a_plain_text_around_or_inside_does_not_make_a_text_plain(self):
        self.assert_guesses("Text {", "    Text { textFormat: Text.PlainText }", "}")
        self.assert_guesses("Text {", "    textFormat: Text.PlainText", "    Text {}", "}", at=3)

    def test_words_that_only_look_like_it_do_not_make_a_text_plain(self):
        self.assert_guesses("Text { text: 'textFormat: Text.PlainText' } // textFormat: Text.PlainText")

    def test_a_plain_text_is_allowed(self):
        self.view("Text { property var a: { 1 } text: name; textFormat: Text.PlainText }")
        self.assertEqual(self.violations(), [])

    def test_our_own_components_are_allowed(self):
        self.view("PlainText { text: name; elide: Text.ElideRight }")
        self.assertEqual(self.violations(), [])

    def test_any_other_format_is_found_even_on_our_own(self):
        for format in ("Text.RichText", "Text.StyledText", "Text.MarkdownText", "Text.AutoText", "chosen"):
            with self.subTest(format=format):
                self.view(f"PlainText {{ textFormat: {format} }}")
                self.assert_violation(
                    "shell/views/Clock.qml:1: textFormat: lets words be markup, which fetches pictures"
                )

    def test_controls_that_guess_are_not_imported(self):
        self.view("import QtQuick.Controls")
        self.assert_violation("shell/views/Clock.qml:1: imports QtQuick.Controls")

    def test_a_label_of_a_dialog_that_guesses_its_format(self):
        for code in ("auto* label = new QLabel(words);", "QLabel label(words);", "auto l = std::make_unique<QLabel>(w);"):
            with self.subTest(code=code):
                self.write("shell/windows/a.cpp", code)
                self.assert_violation(
                    "shell/windows/a.cpp:1: QLabel may take words for markup and fetch its pictures"
                )

    def test_a_question_that_guesses_its_format(self):
        self.write("shell/windows/a.cpp", "QMessageBox box(this);")
        self.assert_violation("shell/windows/a.cpp:1: QMessageBox may take words for markup and fetch its pictures")

    def test_a_plain_question_is_allowed(self):
        self.write("shell/windows/a.cpp", "#include <QMessageBox>", "QMessageBox box(this);",
                   "box.setTextFormat(Qt::PlainText);", "return box.exec() == QMessageBox::Yes;")
        self.assertEqual(self.violations(), [])

    def test_one_plain_label_does_not_answer_for_two(self):
        self.write("shell/windows/a.cpp", "auto* a = new QLabel(w);", "a->setTextFormat(Qt::PlainText);",
                   "auto* b = new QLabel(w);")
        self.assert_violation("shell/windows/a.cpp:3: QLabel may take words for markup and fetch its pictures")

    def test_a_plain_label_is_allowed(self):
        self.write("shell/windows/a.cpp", "auto* a = new QLabel(w);", "a->setTextFormat(Qt::PlainText);")
        self.assertEqual(self.violations(), [])

    def test_what_guesses_and_cannot_be_told(self):
        for code in ("QMessageBox::warning(this, t, w);", "QToolTip::showText(p, w);", "edit->setHtml(w);", "a->setToolTip(words);",
                     "label->setTextFormat(Qt::AutoText);"):
            with self.subTest(code=code):
                self.write("shell/windows/a.cpp", code)
                found = self.violations()
                self.assertEqual(len(found), 1, found)
                self.assertTrue(found[0].endswith("may take words for markup and fetch its pictures"), found)

    def test_a_tool_tip_that_is_made_plain_is_allowed(self):
        self.write("shell/windows/a.cpp", "icon->setToolTip(plainToolTip(words));")
        self.assertEqual(self.violations(), [])


class Events(Tree):
    def test_what_acts_does_not_follow_a_models_signal(self):
        for room in ("app", "app/desktop", "shell", "shell/windows"):
            with self.subTest(room):
                self.write(f"{room}/a.cpp", "c_ = theme.changed.connect([this] { resize(); });")
                self.assertEqual(len(self.violations()), 1)
                self.assertTrue(self.violations()[0].startswith(f"{room}/a.cpp:1: changed.connect( follows a model's"))
                (self.root / room / "a.cpp").unlink()

    def test_what_only_shows_does_not_observe_broadcasts(self):
        for room in ("ui", "core/views", "analysis/report", "shell/icons"):
            with self.subTest(room):
                self.write(f"{room}/a.cpp", "void follow(Broadcaster& all);")
                self.assertEqual(len(self.violations()), 1)
                self.assertTrue(self.violations()[0].startswith(f"{room}/a.cpp:1: Broadcaster observes broadcasts"))
                (self.root / room / "a.cpp").unlink()

    def test_what_shows_follows_a_models_signal(self):
        self.write("core/views/a.cpp", "c_ = engine.changed.connect([this] { update(); });")
        self.assertEqual(self.violations(), [])

    def test_what_acts_observes_broadcasts(self):
        self.write("shell/a.cpp", "o_ = broadcaster.observe<ThemeChanged>([this](const auto&) { resize(); });")
        self.assertEqual(self.violations(), [])

    def test_the_statistics_as_a_whole_show_and_act(self):
        self.write("shell/views/a.cpp", "void follow(Broadcaster& all) { c_ = model.changed.connect(f); }")
        self.assertEqual(self.violations(), [])


class Cycles(Tree):
    def test_a_cycle_of_rooms_is_found(self):
        self.assertEqual(layers.cycle_in({"a": {"b"}, "b": {"c"}, "c": {"a"}}), ["a", "b", "c", "a"])

    def test_a_graph_without_one_has_none(self):
        self.assertEqual(layers.cycle_in({"a": {"b", "c"}, "b": {"c"}}), [])

    def test_a_cycle_in_the_tree_is_reported(self):
        self.write("core/a.h", '#include "core/views/b.h"')
        self.write("core/views/b.h", '#include "core/a.h"')
        self.assertIn(".:0: rooms in a circle: core -> core/views -> core",
                      self.violations_with_knowledge("core", "core/views"))

    def violations_with_knowledge(self, name, neighbour):
        """The violations if the plan itself allowed `name` to know `neighbour`."""
        plan = layers.ROOMS[name]
        layers.ROOMS[name] = layers.Room(plan.knows | {neighbour}, plan.libraries, plan.machine)
        try:
            return self.violations()
        finally:
            layers.ROOMS[name] = plan

    def test_the_plan_itself_has_none(self):
        graph = {name: set(plan.knows) for name, plan in layers.ROOMS.items()}
        self.assertEqual(layers.cycle_in(graph), [])


class CommandLine(Tree):
    def run_script(self):
        return subprocess.run([sys.executable, SCRIPT, self.root], capture_output=True, text=True, check=False)

    def test_ends_with_0_on_a_clean_tree(self):
        self.write("base/a.h")
        self.assertEqual(self.run_script().returncode, 0)

    def test_ends_with_1_and_the_place_on_a_violation(self):
        self.write("base/a.h", "#include <QObject>")
        result = self.run_script()
        self.assertEqual(result.returncode, 1)
        self.assertIn("base/a.h:1: base must not know qt (<QObject>)", result.stdout)

    def test_an_empty_tree_proves_nothing(self):
        self.assertEqual(self.run_script().returncode, 1)


if __name__ == "__main__":
    unittest.main()
