"""Where the drops of a plate are on a microscope's stage, and a picture of those to look at.

Run as: python3 notebook.py LIBRARY PLATE PICTURE
"""

import sys

import numpy as np
import zorvane

library, name, picture = sys.argv[1:]
plate = zorvane.Library(library)[name]

# Two corners of the plate, as the camera found them: turned by half a degree and shifted.
angle = np.radians(0.5)
turn = np.array([[np.cos(angle), -np.sin(angle)], [np.sin(angle), np.cos(angle)]])
corners = plate.centroids()[[0, -1], [0, -1]]
found = corners @ turn.T + [250, 80]

stage = zorvane.Calibration(corners, found)
drops = plate.drops()
places = stage.to_stage(drops[..., :2])
print(f"{plate.name}: {drops[..., 0].size} wells, rms {stage.rms:.6f}")
print("A1 at", *places[0, 0, 0].round(3), "z", drops[0, 0, 0, 2].round(3))

# The half of the plate that is nearest to the stage's origin.
names = np.array(plate.well_names())
distances = np.hypot(*places.reshape(-1, 2).T)
near = names[distances < np.median(distances)]
with open(picture, "w", encoding="utf-8") as file:
    file.write(plate.to_svg(wells={well: "#2F7FD6" for well in near}))
