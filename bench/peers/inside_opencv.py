"""Keys a picture with OpenCV: a hard mask by hue, saturation and value. One argument, the job as JSON (programs.py)."""
import json
import sys
import time

import cv2
import numpy


def limits(screen, settings):
    """The lowest and highest HSV of what counts as screen; OpenCV's hue goes from 0 to 180."""
    hue, saturation, value = (int(v) for v in cv2.cvtColor(numpy.uint8([[screen[::-1]]]), cv2.COLOR_BGR2HSV)[0, 0])
    low = (hue - settings["hue"], saturation * settings["saturation"], value * settings["value"])
    return low, (hue + settings["hue"], 255, 255)


def main():
    job = json.loads(sys.argv[1])
    cv2.setNumThreads(job["threads"])
    front, back = cv2.imread(job["foreground"]), cv2.imread(job["background"])
    low, high = limits([round(v) for v in job["screen"]], job["settings"])
    hsv, result, screen = numpy.empty_like(front), numpy.empty_like(front), numpy.empty(front.shape[:2], numpy.uint8)

    def key():
        cv2.cvtColor(front, cv2.COLOR_BGR2HSV, dst=hsv)
        cv2.inRange(hsv, low, high, dst=screen)
        numpy.copyto(result, front)
        cv2.copyTo(back, screen, result)

    key()
    seconds = []
    for _ in range(job["repeats"]):
        start, used = time.perf_counter(), time.process_time()
        key()
        seconds.append((time.perf_counter() - start, time.process_time() - used))
    if job["alpha"]:
        cv2.imwrite(job["alpha"], 255 - screen)
    if job["result"]:
        cv2.imwrite(job["result"], result)
    print(json.dumps(seconds))


main()
