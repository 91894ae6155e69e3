import haldgen
import numpy as np

x = np.zeros(16, np.complex64)
x[::4] = 1  # a pulse every 4 samples

X = haldgen.fft(x, norm="forward")

for k in np.flatnonzero(X.real > 0.01):
    print(f"bin {k:2}: {X[k].real:.2f}")
