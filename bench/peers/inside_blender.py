"""Keys a picture with the Keying node of Blender's compositor: blender -b -P inside_blender.py -- JOB (programs.py)."""
import json
import statistics
import sys
import time

import bpy


def linear(level):
    value = level / 255.0
    return value / 12.92 if value <= 0.04045 else ((value + 0.055) / 1.055) ** 2.4


def render(repeats, path=None, color_mode="RGB", view="Standard"):
    """The time and CPU time of each of some renderings after one that is not counted; the last goes into a file."""
    scene = bpy.context.scene
    scene.view_settings.view_transform = view
    scene.render.image_settings.file_format = "PNG"
    scene.render.image_settings.color_mode = color_mode
    scene.render.image_settings.compression = 10
    seconds = []
    for _ in range(repeats + 1):
        start, used = time.perf_counter(), time.process_time()
        bpy.ops.render.render()
        seconds.append((time.perf_counter() - start, time.process_time() - used))
    if path:
        bpy.data.images["Render Result"].save_render(path)
    return seconds[1:]


def main():
    job = json.loads(sys.argv[sys.argv.index("--") + 1])
    scene = bpy.context.scene
    scene.render.threads_mode = "FIXED"
    scene.render.threads = job["threads"]
    scene.render.dither_intensity = 0.0
    scene.use_nodes = True
    tree = scene.node_tree
    tree.nodes.clear()

    front, back = tree.nodes.new("CompositorNodeImage"), tree.nodes.new("CompositorNodeImage")
    front.image, back.image = bpy.data.images.load(job["foreground"]), bpy.data.images.load(job["background"])
    scene.render.resolution_x, scene.render.resolution_y = front.image.size
    scene.render.resolution_percentage = 100
    keying, over = tree.nodes.new("CompositorNodeKeying"), tree.nodes.new("CompositorNodeAlphaOver")
    out = tree.nodes.new("CompositorNodeComposite")
    keying.inputs["Key Color"].default_value = [linear(level) for level in job["screen"]] + [1.0]
    for name, value in job["settings"].items():
        setattr(keying, name, value)
    link = tree.links.new

    seconds = []
    if job["repeats"]:
        link(front.outputs["Image"], out.inputs["Image"])
        passed_through = [statistics.median(times) for times in zip(*render(job["repeats"]))]
    link(front.outputs["Image"], keying.inputs["Image"])
    link(back.outputs["Image"], over.inputs[1])
    link(keying.outputs["Image"], over.inputs[2])
    if job["repeats"] or job["result"]:
        link(over.outputs["Image"], out.inputs["Image"])
        seconds = [(wall - passed_through[0], cpu - passed_through[1])
                   for wall, cpu in render(job["repeats"], job["result"])]
    if job["alpha"]:
        link(keying.outputs["Matte"], out.inputs["Image"])
        render(0, job["alpha"], "BW", "Raw")
    print("\n" + json.dumps(seconds))


main()
