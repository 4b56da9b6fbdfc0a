"""Writes the benchmark report: what was measured on what, summaries, plots, where the library loses, and every row."""
import math
import os
import pathlib
import re
import subprocess

NAMES = dict(eigen="Eigen", native="Eigen, native", lapack="LAPACK", xsmm="LIBXSMM", glm="GLM", loop="plain loop")
COLOURS = dict(eigen="#1f77b4", native="#ff7f0e", lapack="#2ca02c", xsmm="#d62728", glm="#9467bd", loop="#7f7f7f")


def said(*command):
    try:
        return subprocess.run(command, check=True, capture_output=True, text=True).stdout
    except (OSError, subprocess.CalledProcessError):
        return ""


def version(package):
    found = said("dpkg-query", "-W", "-f", "${Version}", package)
    return re.sub(r"^\d+:|[-+].*$", "", found) or "?"


def machine():
    cpu = said("lscpu", "--json") and said("lscpu")
    model = re.search(r"Model name: *(.*)", cpu)
    flags = re.search(r"Flags: *(.*)", cpu)
    widest = next((w for f, w in (("avx512f", "AVX-512"), ("avx2", "AVX2"), ("avx", "AVX")) if flags and f in flags[1].split()), "SSE")
    return (f"{model[1].strip() if model else 'unknown processor'}, {os.cpu_count()} cores seen, {widest}; "
            f"first-level data cache {said('getconf', 'LEVEL1_DCACHE_SIZE').strip() or '?'} bytes")


def ratios(rows, peer, place="cache"):
    return [(r, r[peer] / r["ours"]) for r in rows
            if r["place"] == place and not r["error"] and r.get("ours") and math.isfinite(r.get(peer, math.inf))]


def table(head, lines):
    yield "| " + " | ".join(head) + " |"
    yield "|" + "|".join("---" if i == 0 else "---:" for i in range(len(head))) + "|"
    for line in lines:
        yield "| " + " | ".join(line) + " |"
    yield ""


def plot(rows, peers, title, path, place="cache"):
    """A line of dots a family: how many times as fast as each peer, one dot a size and type."""
    import matplotlib
    matplotlib.use("Agg")
    matplotlib.rcParams["svg.hashsalt"] = "vokm"
    import matplotlib.pyplot as plt
    families = list(dict.fromkeys(r["family"] for r in rows if r["place"] == place))
    figure, axes = plt.subplots(figsize=(8, 0.8 + 0.34 * len(families)))
    shown = [p for p in peers if ratios(rows, p, place)]
    for k, peer in enumerate(shown):
        for kind, marker in (("32f", "o"), ("64f", "D")):
            dots = [(value, families.index(r["family"]) + (k - (len(shown) - 1) / 2) * 0.22)
                    for r, value in ratios(rows, peer, place) if r["type"] == kind]
            axes.plot([x for x, _ in dots], [y for _, y in dots], marker, color=COLOURS[peer], markersize=4, alpha=0.75,
                      label=f"{NAMES[peer]}, {kind}")
    axes.axvline(1, color="black", linewidth=0.8)
    axes.set_xscale("log", base=2)
    axes.xaxis.set_major_formatter(lambda x, _: f"{x:g}×")
    axes.set_yticks(range(len(families)), families)
    axes.set_ylim(len(families) - 0.5, -0.5)
    axes.grid(axis="x", linewidth=0.3)
    axes.set_title(title, fontsize=10)
    axes.set_xlabel("times as fast as the peer (right of the line: ours is faster)", fontsize=8)
    axes.tick_params(labelsize=8)
    axes.legend(fontsize=7, loc="center left", bbox_to_anchor=(1, 0.5), frameon=False)
    figure.savefig(path, dpi=110, bbox_inches="tight", metadata={"Software": None})
    plt.close(figure)


def spread(values):
    values = sorted(values)
    return f"{values[0]:.2f}", f"{values[len(values) // 2]:.2f}", f"{values[-1]:.2f}"


def summary(groups, rows, group_of, geometric):
    for g in groups:
        inside = [r for r in rows if group_of(r["family"]) is g]
        for place in ("cache", "stream", "whole"):
            for peer in NAMES:
                found = ratios(inside, peer, place)
                if found:
                    low, middle, high = spread(v for _, v in found)
                    yield (g["name"] if place != "stream" else g["name"] + ", streaming", NAMES[peer],
                           f"**{geometric(v for _, v in found):.2f}**", low, middle, high, str(len(found)))


def losses(rows):
    for r in rows:
        if r["place"] == "stream" or r["error"] or not r.get("ours"):
            continue
        ahead = {p: r["ours"] / r[p] for p in NAMES if p != "loop" and p in r and r[p] < 0.95 * r["ours"]}
        if ahead:
            yield (f"`{r['family']}`", r["type"], str(r["n"]),
                   ", ".join(f"{NAMES[p]} {v:.2f}" for p, v in sorted(ahead.items(), key=lambda i: -i[1])))


def all_rows(rows):
    peers = [p for p in [*NAMES, "planesP", "planesS", "bare", "list"] if any(p in r for r in rows)]
    head = ["function", "type", "n", "ours", *(NAMES.get(p, p) for p in peers)]
    body = [[f"`{r['family']}`", r["type"], str(r["n"]), f"**{r['ours']:.2f}**",
             *(f"{r[p]:.2f}" if math.isfinite(r.get(p, math.inf)) else "" for p in peers)]
            for r in rows if not r["error"] and r.get("ours")]
    return table(head, body)


def write(path, rows, groups, group_of, geometric, rounds):
    path = pathlib.Path(path)
    images = path.parent / "images"
    images.mkdir(exist_ok=True)
    gcc = said("g++", "--version").split("\n")[0]
    text = ["# Benchmarks", "", "This page is written by `scripts/bench --report`; [bench/README.md](../bench/README.md) says how it measures.", "",
            f"- Machine: {machine()}. Shared with other work: absolute times are worth little here, ratios in one run are.",
            f"- Compiler: {gcc}. Ours and Eigen: `-O3 -msse3 -ffp-contract=off -fno-math-errno`; \"Eigen, native\": `-O3 -march=native`.",
            f"- Peers: Eigen {version('libeigen3-dev')}, OpenBLAS {version('libopenblas-dev')} (LAPACK, a call an object), "
            f"LIBXSMM {version('libxsmm-dev')} (generated for this processor), GLM {version('libglm-dev')}. Each in its best formulation.",
            f"- Noise: all contenders of a row take turns in short bursts, {rounds} rounds; each figure is the median of its bursts. One thread.",
            "- Checked: all results are compared with each other before anything is timed.", "",
            "## Summary", "", "Times as fast as the peer: geometric mean, least, median and most over the rows.", ""]
    text += table(["family group", "peer", "mean", "least", "median", "most", "rows"], summary(groups, rows, group_of, geometric))
    for g in groups:
        inside = [r for r in rows if group_of(r["family"]) is g and r["place"] != "whole"]
        for place, peers in (("cache", ["eigen", "native", "glm", "xsmm"]), ("cache", ["lapack"]), ("stream", ["loop", "eigen"])):
            if not any(ratios(inside, p, place) for p in peers):
                continue
            name = "bench-" + "-".join([*g["name"].split(), *([place] if place == "stream" else []), *([peers[0]] if len(peers) == 1 else [])])
            title = f"{g['name']}, sizes 3 to 6, " + ("dense arrays in cache" if place == "cache" else "dense arrays streaming from memory")
            plot([r for r in inside if r["place"] == place], peers, title, images / f"{name}.png", place)
            text += [f"![{title}](images/{name}.png)", ""]
    text += ["## Where we lose", "",
             "Rows in which a peer is more than 5 % faster in cache, and how many times as fast it is. The native flavour and "
             "LIBXSMM may fuse a product with a sum and may sum in any order, which our promise of bits forbids.", ""]
    text += table(["function", "type", "n", "faster"], losses(rows))
    for place, title in (("cache", "All rows in cache"), ("stream", "All streaming rows"), ("whole", "Large matrices")):
        some = [r for r in rows if r["place"] == place]
        if some:
            own = ("`planesP`, `planesS`, `list`: ours in other arrangements; `bare`: a loop that only reads the planes, adds and "
                   "stores (norms: takes the root).")
            text += [f"## {title}", "", "Nanoseconds an object. " + own if place == "cache" else "Nanoseconds an object.", "", *all_rows(some)]
    path.write_text("\n".join(text).rstrip() + "\n")
