"""The command line of plot."""
import argparse
import os
import sys

from . import figures, films, floods, maps, series
from .outputs import available, outputs, present_name
from .pictures import whole_picture
from .results import Results, at_time
from .stored import Fault

EPILOG = """Outputs are those of SIMULATION/OUTPUT, as far as the data in the file give them; the
components of a vector and of the flood tracking have names of their own:
"""


class Parser(argparse.ArgumentParser):
    """Ends with status 1, as all programs here do."""

    def error(self, message):
        self.exit(1, f"{self.prog}: {message}; see {self.prog} --help\n")


def parser():
    top = Parser(prog="plot", description="Draws pictures of a results file.", allow_abbrev=False)
    commands = top.add_subparsers(dest="command", required=True, metavar="COMMAND")

    epilog = EPILOG + "\n".join(f"  {name:<30}{output.title} [{output.unit}]"
                                for name, output in outputs().items())

    def command(name, text, formats, run):
        made = commands.add_parser(name, help=text, description=text, allow_abbrev=False,
                                   epilog=epilog if name in ("map", "animate") else None,
                                   formatter_class=argparse.RawDescriptionHelpFormatter)
        made.add_argument("file", metavar="RESULTS", help="the file that simulation has written")
        made.add_argument("-o", dest="picture", metavar="PICTURE", required=True,
                          help=f"the picture to write, {', '.join(formats)}")
        made.set_defaults(formats=formats, run=run)
        return made

    still = command("map", "an output at one time", figures.FORMATS, draw_map)
    still.add_argument("--time", type=_time, help="\"first\", \"last\" or seconds (default: last)")
    film = command("animate", "an output at all times", films.FORMATS, animate)
    film.add_argument("--fps", type=_positive, default=8.0, help="records per second (default: 8)")
    film.add_argument("--every", type=_count, default=1, metavar="N",
                      help="only each N-th record")
    for made in (still, film):
        made.add_argument("--output", default="water_depth", help="default: water_depth")
        made.add_argument("--arrows", action=argparse.BooleanOptionalAction,
                          help="arrows of the flow (default: with vectors)")
        made.add_argument("--range", nargs=2, type=float, metavar=("LOW", "HIGH"),
                          help="ends of the colours (default: those of the values)")
    summary = command("flood", "maximum depth and arrival time", figures.FORMATS, draw_flood)
    for made in (still, film, summary):
        made.add_argument("--mesh", action="store_true", help="the edges of the cells too")
        made.add_argument("--stretch", type=_positive, metavar="FACTOR",
                          help="of the shorter side (default: 1 unless the domain is very long)")
    lines = command("hydrographs", "discharges through nodestrings over time", figures.FORMATS,
                    draw_hydrographs)
    lines.add_argument("--string", action="append", metavar="NAME",
                       help="only this nodestring; may be repeated (default: all)")
    return top


def _time(text):
    return text if text in ("first", "last") else float(text)


def _count(text):
    number = int(text)
    if number < 1:
        raise argparse.ArgumentTypeError(f"{text} is below 1")
    return number


def _positive(text):
    number = float(text)
    if not number > 0.0:
        raise argparse.ArgumentTypeError(f"{text} is not above 0")
    return number


def main(arguments):
    """Runs a command; returns the exit status."""
    try:
        options = parser().parse_args(arguments)
        _check_options(options)
        _tell_of_journal(options.file)
        with Results(options.file) as results:
            with whole_picture(options.picture, options.file) as options.unfinished:
                shown = options.run(results, options)
        print(f"{options.picture}: {shown}")
    except Fault as fault:
        print(f"plot: {fault}", file=sys.stderr)
        return 1
    return 0


def _check_options(options):
    if not options.picture.endswith(options.formats):
        raise Fault(f"the name {options.picture} has to end in {' or '.join(options.formats)}")
    ends = getattr(options, "range", None)
    if ends and not ends[0] < ends[1]:
        raise Fault(f"--range takes the lower end first: {ends[0]:g} is not below {ends[1]:g}")


def _tell_of_journal(path):
    journal = path + ".rheomark-journal"
    if os.path.exists(journal):
        print(f"plot: note: {journal} holds changes that are not in the results yet; if no "
              f"run is writing them, bring them in with: export -r {path} --list", file=sys.stderr)


def _output(results, name):
    """The output of this name. Raises Fault if there is none, or its data are not in the file."""
    names = available(results)
    if name != present_name(name):
        print(f"plot: note: {name} is called {present_name(name)} now; the next release knows the "
              "new name only", file=sys.stderr)
        name = present_name(name)
    if name in names:
        return outputs()[name]
    if name == "delta_z" and "bottom_elevation" in names:
        reason = "the bed does not move in this study, there is no delta_z"
    elif name in ("ns_hyd_discharge", "ns_mor_discharge"):
        reason = f"{name} is drawn by plot hydrographs"
    elif name in outputs():
        missing = next(path for path in outputs()[name].data if not results.has(path))
        reason = f"{name} needs {missing}, which is not in {results.path}"
    else:
        reason = f"there is no output {name}"
    raise Fault(f"{reason}; to be shown: {', '.join(names)}")


def _records(results, output):
    records = results.records(output.data)
    if not records:
        raise Fault(f"{results.path} has no valid record with {' and '.join(output.data)}")
    return records


def draw_map(results, options):
    output = _output(results, options.output)
    if not output.tracked:
        wanted = "last" if options.time is None else options.time
        record = at_time(_records(results, output), wanted)
    elif options.time is None and not options.arrows:
        record = results.tracked()
    else:
        raise Fault(f"{output.name} is of the whole run: leave --time and --arrows out")
    maps.still(results, output, record, options)
    return maps.title_of(results, output, record).replace("\n", ", ")


def animate(results, options):
    output = _output(results, options.output)
    if output.tracked:
        raise Fault(f"{output.name} does not change with time: draw it with plot map")
    records = _records(results, output)[::options.every]
    if len(records) < 2:
        raise Fault(f"{results.path} has {len(records)} valid record for this; an animation takes "
                    "two or more")
    films.moving(results, output, records, options)
    return f"{results.name}: {output.title}, {len(records)} records"


def draw_flood(results, options):
    return f"{results.name}: flood, {floods.flood(results, options)}"


def draw_hydrographs(results, options):
    series.hydrographs(results, options.string, options.unfinished)
    return f"{results.name}: discharges"
