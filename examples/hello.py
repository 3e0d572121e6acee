import hux

image = hux.set((20, 60, 160), shape=(480, 640, 3), dtype="uint8")  # blue
hux.set((250, 180, 30), out=image[120:360, 160:480])                # amber
print("centre:", *image[240, 320])
