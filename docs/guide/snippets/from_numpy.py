import haldgen
import numpy as np
import scipy.fft
import scipy.linalg

x = np.random.default_rng(1).standard_normal((5, 16))
z = x + 1j * x[::-1]

same = np.testing.assert_allclose  # raises unless the two agree to 1e-7

for norm in (None, "backward", "ortho", "forward"):
    same(haldgen.fft(z, norm=norm), np.fft.fft(z, norm=norm))
    same(haldgen.ifft(z, norm=norm), np.fft.ifft(z, norm=norm))
    same(haldgen.rfft(x, norm=norm), np.fft.rfft(x, norm=norm))
    same(haldgen.irfft(z, n=15, norm=norm), np.fft.irfft(z, n=15, norm=norm))
    same(haldgen.fft2(z[:4], norm=norm), np.fft.fft2(z[:4], norm=norm))
    same(haldgen.dct4(x, norm=norm), scipy.fft.dct(x, type=4, norm=norm))

X = np.fft.fft(x)
same(haldgen.hartley(x), X.real - X.imag)  # cas = cos + sin
same(haldgen.wht(x), x @ scipy.linalg.hadamard(16))  # natural order, no scale

same(haldgen.fft(x, axis=0), np.fft.fft(x, axis=0))
same(haldgen.rfft(x, n=12), np.fft.rfft(x, n=12))  # cut or filled up

print(haldgen.fft(z.astype(np.complex64)).dtype)  # 32 bits stay 32 bits
