"""Keys a picture with GEGL's colour to alpha. One argument, the job as JSON (programs.py)."""
import json
import sys
import time

import gi

gi.require_version("Gegl", "0.4")
from gi.repository import Gegl  # noqa: E402


def add(graph, operation, **properties):
    node = graph.create_child(operation)
    for name, value in properties.items():
        node.set_property(name.replace("_", "-"), value)
    return node


def load(path):
    graph = Gegl.Node()
    source = add(graph, "gegl:load", path=path)
    box = source.get_bounding_box()
    pixels = Gegl.Buffer.new("R'G'B' u8", box.x, box.y, box.width, box.height)
    sink = add(graph, "gegl:write-buffer", buffer=pixels)
    source.connect_to("output", sink, "input")
    sink.process()
    return pixels, box


def save(graph, node, path):
    file = add(graph, "gegl:png-save", path=path, bitdepth=8)
    node.connect_to("output", file, "input")
    file.process()


def main():
    job = json.loads(sys.argv[1])
    settings = Gegl.config()
    settings.set_property("application-license", "GPL3")  # the operation is offered to such programs only
    settings.set_property("threads", job["threads"])
    settings.set_property("use-opencl", False)
    Gegl.init(None)

    (front, box), (back, _) = load(job["foreground"]), load(job["background"])
    result = Gegl.Buffer.new("R'G'B' u8", box.x, box.y, box.width, box.height)
    graph = Gegl.Node()
    color = Gegl.Color.new("#%02x%02x%02x" % tuple(round(v) for v in job["screen"]))
    source, under = add(graph, "gegl:buffer-source", buffer=front), add(graph, "gegl:buffer-source", buffer=back)
    keyed = add(graph, "gegl:color-to-alpha", color=color, transparency_threshold=job["settings"]["transparency"],
                opacity_threshold=job["settings"]["opacity"])
    over = add(graph, "gegl:over")
    sink = add(graph, "gegl:write-buffer", buffer=result)
    source.connect_to("output", keyed, "input")
    under.connect_to("output", over, "input")
    keyed.connect_to("output", over, "aux")
    over.connect_to("output", sink, "input")

    sink.process()
    seconds = []
    for _ in range(job["repeats"]):
        start, used = time.perf_counter(), time.process_time()
        sink.process()
        seconds.append((time.perf_counter() - start, time.process_time() - used))
    if job["alpha"]:
        matte = add(graph, "gegl:component-extract", linear=False)
        matte.set_property("component", "alpha")
        keyed.connect_to("output", matte, "input")
        save(graph, matte, job["alpha"])
    if job["result"]:
        save(graph, over, job["result"])
    print(json.dumps(seconds))


main()
