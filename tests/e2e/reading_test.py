"""The statistics window as those hear it who do not see it: the words of every tab, against what is on disk."""

import unittest

from harness import worked_days as record
from harness.statistics_window import DETAILS, GOALS, OVERVIEW, PROJECTS, TABS, TIMESHEET, StatisticsWindow
from harness.waiting import wait_until
from harness.worked_days import TODAY, duration
from harness.world import World

# The day goes on counting while the test looks.
TIMEOUT_SECONDS = 180


def share(part, whole):
    return f"{part * 100 / whole:.0f}%"


def line(application, seconds):
    return "list item", f"{record.NAMES[application]}, {duration(seconds)}"


def on_clock(hour, minute=0):
    return f"{(hour - 1) % 12 + 1}:{minute:02}{'am' if hour < 12 else 'pm'}"


def by_name(applications, names):
    """Seconds by what `names` calls the applications, the greatest first."""
    sums = {}
    for application, seconds in applications.items():
        sums[names[application]] = sums.get(names[application], 0) + seconds
    return sorted(sums.items(), key=lambda item: -item[1])


def of_tier(applications, tier):
    return sum(seconds for application, seconds in applications.items() if record.TIERS[application] == tier)


def outline(node):
    """(role, name) of all that is below it."""
    return [(below.role, below.name) for below in node.all()][1:]


class Reading(unittest.TestCase):
    """One window for all tests; each goes to its own tab."""

    @classmethod
    def setUpClass(cls):
        cls.world = cls.enterClassContext(World("reading", accessibility=True))
        cls.world.home.write_settings(sizeScale=0.5, windowOriginX=20, windowOriginY=20)
        record.write(cls.world.home)
        program = cls.world.start_program()
        cls.window = StatisticsWindow(cls.world, program)
        cls.window.open()

    def expect_outline(self, tab, expected):
        """`expected(seconds)` is what the tab says once today has come to so many seconds."""
        possible = []
        for passed in range(TIMEOUT_SECONDS):
            words = expected(record.total(TODAY) + passed)
            if words not in possible:
                possible.append(words)
        self.window.select(tab)
        found = []

        def agrees():
            found[:] = [part for part in outline(self.window.tab(tab)) if part[0] != "scroll bar"]
            return found in possible

        try:
            wait_until(agrees, f"the words of {tab}")
        except AssertionError:
            self.assertEqual(found, possible[0])

    def test_the_head_tells_brand_date_and_the_ways_to_other_days(self):
        self.window.select(OVERVIEW)
        read = self.window.wait_for(lambda read: True, "the window")
        head = [(node.role, node.name) for node in read.children[:6]]
        self.assertEqual(
            head,
            [
                ("heading", "FATHOM"),
                ("label", "Marca tu tiempo"),
                ("push button", "Día anterior"),
                ("label", record.short_date()),
                ("push button", "Día siguiente"),
                ("push button", "hoy"),
            ],
        )
        self.assertEqual(read.find("push button", "Día siguiente")[0].description, "no disponible")
        self.assertEqual(read.find("push button", "Día anterior")[0].description, "")

    def test_the_tabs_tell_which_one_is_on_show(self):
        for tab in TABS:
            self.window.select(tab)
            read = self.window.wait_for(
                lambda read: [node.name for node in read.find("page tab") if "selected" in node.states] == [tab],
                f"{tab} alone to be selected",
            )
            self.assertEqual(tuple(read.names("page tab")), TABS)

    def test_a_tab_is_pressed_without_hands(self):
        self.window.select(OVERVIEW)
        for tab in (*TABS[1:], OVERVIEW):
            self.window.wait_for_text("page tab", tab).act("Press")
            self.window.tab(tab)

    def test_a_day_that_cannot_be_gone_to_stays_away_when_it_is_pressed_without_hands(self):
        self.window.select(OVERVIEW)
        self.window.wait_for_text("push button", "Día siguiente").act("Press")
        self.window.wait_for_text("push button", "Día anterior").act("Press")
        self.window.wait_for_text("label", record.short_date(1))
        following = self.window.wait_for(
            lambda read: not read.find("push button", "Día siguiente")[0].description, "a day to go to"
        ).find("push button", "Día siguiente")[0]
        following.act("Press")
        self.window.wait_for_text("label", record.short_date())

    def test_everything_that_can_be_worked_has_a_name(self):
        worked = {"push button", "page tab", "check box", "radio button", "spin box", "text", "list item", "scroll bar"}
        for tab in TABS:
            self.window.select(tab)
            read = self.window.wait_for(lambda read: True, "the window")
            nameless = [node.role for node in read.all() if node.role in worked and not node.name]
            self.assertEqual(nameless, [], tab)

    def test_overview(self):
        today = record.by_application(TODAY)
        hours = record.by_hour(TODAY)

        def column(tier):
            applications = [line(one, today[one]) for one in today if record.TIERS[one] == tier]
            return [
                ("panel", f"{tier}: {duration(of_tier(today, tier))}"),
                ("heading", tier.upper()),
                ("list", tier),
                *applications,
            ]

        def spoken_hour(hour):
            return f"{(hour - 1) % 12 + 1} {'am' if hour < 12 else 'pm'}"

        chart = ", ".join(f"{spoken_hour(hour)} {duration(seconds)}" for hour, seconds in hours.items())
        both = record.total(TODAY) + record.total(record.YESTERDAY)

        def tile(title, text):
            return [("panel", f"{title}: {text}"), ("heading", title)]

        self.expect_outline(
            OVERVIEW,
            lambda seconds: [
                # 1630 of 1880 classified seconds, and 1750 of 2340 the day before.
                ("panel", f"PRODUCTIVIDAD: 87%, {duration(record.total(TODAY))}, +12% vs ayer"),
                ("heading", "PRODUCTIVIDAD"),
                *column("Productivo"),
                *column("Neutral"),
                *column("Distrayendo"),
                ("chart", f"Actividad por hora: {chart}."),
                ("heading", "ACTIVIDAD POR HORA"),
                *(("label", f"{spoken_hour(hour)}, {duration(hours.get(hour, 0))}") for hour in range(24)),
                ("heading", "RACHA & ANÁLISIS"),
                ("panel", "Rango"),
                ("radio button", "Semana"),
                ("radio button", "Mes"),
                ("radio button", "Todo"),
                ("panel", f"SESIÓN MÁS LARGA SIN PARAR: 29m, {record.short_date(1)}, 3:00 pm – 3:30 pm"),
                ("heading", "SESIÓN MÁS LARGA SIN PARAR"),
                # The busiest hours of the two days are 9 and 15.
                *tile("HORA PICO", "3 pm, prom. 12 pm"),
                *tile("TOTAL", f"{duration(both + seconds - record.total(TODAY))}, últimos 7 días"),
                *tile("PROMEDIO / DÍA", f"{duration((both + seconds - record.total(TODAY)) // 2)}, días con trabajo"),
                *tile("MEJOR DÍA", f"39m, {record.short_date(1)}"),
                *tile("MEJOR PRODUCTIVIDAD", f"87%, {record.short_date()}"),
                *tile("CONSTANCIA", "2/2, días activos"),
            ],
        )

    def test_goals(self):
        def hm(seconds):
            return f"{seconds // 3600}h {seconds % 3600 // 60}m" if seconds >= 3600 else f"{seconds // 60}m"

        def progress(seconds):
            yesterday = record.total(record.YESTERDAY)
            week = seconds + (yesterday if record.same_week(1) else 0)
            month = seconds + (yesterday if record.same_month(1) else 0)
            return [
                ("progress bar", f"Hoy: {hm(seconds)} / 6h 0m"),
                ("progress bar", "Productividad hoy: 87% / 80%, cumplida"),
                ("progress bar", f"Semana: {hm(week)} / 35h 0m"),
                ("progress bar", f"Mes: {hm(month)} / 140h 0m"),
            ]

        # Two for the score of each day; the hours are far from the goal.
        month_stars = 4 if record.same_month(1) else 2
        self.expect_outline(
            GOALS,
            lambda seconds: [
                ("heading", "RECOMPENSA DE HOY"),
                ("label", "2 de 5 estrellas"),
                ("label", "Racha: 0 días"),
                ("label", f"Estrellas del mes: ★ {month_stars}"),
                ("heading", "PROGRESO"),
                *progress(seconds),
                ("heading", "FIJAR METAS"),
                ("spin box", "Horas por día"),
                ("spin box", "Productividad diaria"),
                ("spin box", "Horas por semana"),
                ("spin box", "Horas por mes"),
                ("check box", "Notificaciones de metas"),
                ("push button", "Generar reporte PDF del mes…"),
            ],
        )
        values = [(spin.value(), spin.description) for spin in self.window.tab(GOALS).find("spin box")]
        self.assertEqual(
            values,
            [((6, 1, 16), "6.0h"), ((80, 30, 100), "80%"), ((35, 5, 80), "35.0h"), ((140, 20, 320), "140.0h")],
        )

    def test_details(self):
        today = record.by_application(TODAY)
        whole = sum(today.values())

        def row(application, seconds):
            words = record.NAMES[application], record.TIERS[application], record.CATEGORIES[application]
            return "list item", ", ".join([*words, duration(seconds), share(seconds, whole)])

        self.expect_outline(
            DETAILS,
            lambda _: [
                ("check box", "Productivo"),
                ("check box", "Neutral"),
                ("check box", "Distrayendo"),
                ("check box", "Sin categorizar"),
                ("text", "buscar"),
                ("heading", "APP"),
                ("heading", "TIER"),
                ("heading", "TIEMPO"),
                ("heading", "%"),
                *(row(application, seconds) for application, seconds in today.items()),
                ("label", "Tip: right-click una fila para reclasificar."),
            ],
        )

    def test_timesheet(self):
        def hour(number):
            applications = record.by_application(TODAY, number)
            sums = [
                ("Total", sum(applications.values())),
                *((tier, of_tier(applications, tier)) for tier in ("Productivo", "Neutral", "Distrayendo")),
            ]
            named = by_name(applications, record.NAMES)
            parts = ", ".join(f"{name} {duration(seconds)}" for name, seconds in sums + named)
            cells = []
            for (its_hour, minute), filled in TODAY.items():
                if its_hour == number:
                    tier = max(("Productivo", "Neutral", "Distrayendo"), key=lambda tier: of_tier(filled, tier))
                    cells.append(f"{on_clock(number, minute)}, {duration(sum(filled.values()))}, {tier}")
            return [
                ("list item", f"{on_clock(number)}, {parts}"),
                *(("label", cell) for cell in cells),
                *(("label", f"{name}, {duration(seconds)}") for name, seconds in sums),
                *(("list item", f"{name}, {duration(seconds)}") for name, seconds in named),
                *(
                    ("label", f"{category}, {duration(seconds)}")
                    for category, seconds in by_name(applications, record.CATEGORIES)
                ),
            ]

        self.expect_outline(
            TIMESHEET,
            lambda _: [
                ("heading", "HORA"),
                ("heading", "SUMARIO"),
                ("heading", "ACTIVIDADES"),
                *(part for number in record.by_hour(TODAY) for part in hour(number)),
            ],
        )

    def test_projects(self):
        tagged = sum(record.PROJECT_SECONDS.values())

        def cards(seconds):
            rest = seconds - tagged
            return [
                ("list item", f"SIN PROYECTO, {duration(rest)}, {share(rest, seconds)}"),
                ("heading", "SIN PROYECTO"),
                ("label", "Tiempo activo sin etiquetar a ningún proyecto."),
                ("list item", f"{record.PROJECT}, {duration(tagged)}, {share(tagged, seconds)}"),
                *(line(application, its) for application, its in record.PROJECT_SECONDS.items()),
                (
                    "label",
                    "Tip: cambia el proyecto activo desde el menú del ⏰. El tiempo a partir de ese momento se etiqueta.",
                ),
            ]

        self.expect_outline(PROJECTS, cards)

    def test_what_is_on_disk_is_what_was_told(self):
        """The counters that all these words came from are still the ones that were put there."""
        stored = self.world.home.read("apps.json")[record.day_key()]
        self.assertEqual(stored, record.by_application(TODAY))
        self.assertGreaterEqual(self.world.home.read("today.json")[record.day_key()], record.total(TODAY))


class Order(unittest.TestCase):
    def test_the_rows_of_a_tier_are_read_as_they_stand_after_a_change_of_day(self):
        today = {(9, 0): {record.EDITOR: 500, record.BROWSER: 90}}
        yesterday = {(9, 0): {record.BROWSER: 500, record.EDITOR: 90}}
        with World("reading-order", accessibility=True) as world:
            world.home.write_settings(sizeScale=0.5, windowOriginX=20, windowOriginY=20)
            record.write(world.home, today, yesterday)
            window = StatisticsWindow(world, world.start_program())
            window.open()
            for button, cells in (("Día anterior", yesterday), ("hoy", today), ("Día anterior", yesterday)):
                window.wait_for_text("push button", button).act("Press")
                expected = [line(one, seconds) for one, seconds in record.by_application(cells).items()]

                def as_expected(read):
                    rows = read.find("list", "Productivo")[0].children
                    return [(row.role, row.name) for row in rows] == expected

                rows = window.wait_for(as_expected, f"the rows as they stand after {button}").find("list", "Productivo")[0]
                places = [row.frame().y for row in rows.children]
                self.assertEqual(places, sorted(places))


class Empty(unittest.TestCase):
    def test_without_a_record_every_tab_says_so(self):
        with World("reading-empty", accessibility=True) as world:
            world.home.write_settings(sizeScale=0.5, windowOriginX=20, windowOriginY=20)
            window = StatisticsWindow(world, world.start_program())
            window.open()
            overview = window.tab(OVERVIEW)
            self.assertEqual(overview.names("label").count("Nada por aquí en este día."), 3)
            self.assertIn("Actividad por hora: ninguna.", overview.names("chart"))
            self.assertIn(
                "SESIÓN MÁS LARGA SIN PARAR: Aún no hay una sesión larga registrada en este rango.",
                overview.names("panel"),
            )
            self.assertIn("Sin actividad para los filtros seleccionados.", window.select(DETAILS).names("label"))
            self.assertIn("Sin actividad registrada para este día.", window.select(TIMESHEET).names("label"))
            self.assertEqual(
                window.select(PROJECTS).names("label"),
                ["Sin proyectos todavía", "Créa uno desde el menú ⏰ → Proyecto → Nuevo proyecto…"],
            )


if __name__ == "__main__":
    unittest.main()
