# Images: those of rows and check boxes, and those that GUI maps and icon columns name by their files.

namespace eval ::znbrowser {
    variable imageData ;# PNG
    array set imageData {
        folder {
            iVBORw0KGgoAAAANSUhEUgAAABAAAAAQCAYAAAAf8/9hAAABW0lEQVQ4y5WSP0sDQRDFf7O7MU3wDxEEsfAz2FiYSptgk1Ir
            v4GVYGXhp7C11EoQRFEQLFILVhEstIg2oh4SDbnL7VjcHZ7h1OQ1w84w782bWXk4rDEM5tebhXmTizaNZuANwG9CUpR8v2zk
            64ZieEDl/mAJoAFso3SRlFSxXv2OiDQBE7y8+YXN1iC5yuPRMv0oOrPO1QViBZtFY83pVLW6G4bhpIjEaaMm9uQG9NlVpyfo
            dnvinAWIvyeUWFXrUe9zVZCkLUEMakHO1ffrzszUKAd3RkoVkgI251NB/E/rqohBw4+5tcU9cXGnjQ87SByRl8n5LFi0oD7U
            NqgLX24R40A9I0FEruMWTlwZVEHsaARAcLKBQzX1qqP2q63M4gaSff5n8sBYZiQjeE2jG7hCEbJTB4BmBFvAxRDqqV1KwFWm
            CPAE7AOMrxz/2Z37yomHNCFDjF60C/8FwXd+jPmmRBIAAAAASUVORK5CYII=
        }
        tree {
            iVBORw0KGgoAAAANSUhEUgAAABAAAAAQCAYAAAAf8/9hAAAB0UlEQVQ4y42SsWtUQRDGf7PvLpc7L/GMcIV4hLMRCz3SWMSE
            FKIIB1aKWGnjP2CreAhiK2iTQm0TjEhII9gEMVUiWEgKwUaLKwyouaj38m7fjoW75OUZgwPLt+zOfvPNNysznRX+J17fndrz
            vOBRgOtAE9gGhoAvwBMg9ve6H8Fp4KlPEiAFIk+y4Pd2P4KKxz5Q9CqqQEUVDlaHpbPUldxbzRIkHocB4xdAMrApvZ+x5lqQ
            0FZIXANuA2+AH8Az4KEqrz582mB6olkFxoBDHsuBUPwUIt93G5hV1calsyfN962+S53eAu4AvYy6GDgPvC+wO1KgLiKPXiyv
            m2Rg48nW+OWRSmnIOT3sZVugBkz8i6AINECNiKTOaTk4lncxmMFMZ2VXC85p48q5U+Zr75dLnd4HbgKbXn74E21gNa9AAWuM
            UBst67etPqBzwDF/54AS8BF4lx1jCAscAR48XlyLthMbn2mNXxw5UDrunDqvIHyyt8DzQqYywGdg8U9FNcaIdao1IFWwsmNi
            xY9yT1/oLHWzo30JXMhUDngVmA8mZk2NAOpjVXOt3UpW17tTInIDGHilRWADuAds5gl23FQoRIaj9VH6iUWAE836X3m/Aemk
            pCeGVMhDAAAAAElFTkSuQmCC
        }
        list {
            iVBORw0KGgoAAAANSUhEUgAAABAAAAAQCAYAAAAf8/9hAAAB2klEQVQ4y62TvWtUQRTFf3dm8nazroKCCgZRV0IKiUEkQcRm
            EbVRa22sRAuJNlYqARe1sLKJKAT8GwSxFougooYgyqqL4irxYxMliPuR995ci/eyCZpsQDztzD1zfoc7cqZ0G0AABRgdOU0n
            pffbM3L++h1UWf999ue1KIoLIhKlh0tJVdVaa2pr8rmLgrxzH6Zq5HPZ0u4d208O9fdGvxotJyLLTZPLZuKXlaodnyiv/jYz
            e9hVp2r0bespDPRtZbC/13vvY2PMkgZeFSPi86uydnyivOXuzQviRCSBT2TvPXhqwyjG/JFC0wRHioMiIqgqgDpVBVWZf/XJ
            i7c0mnNYY9DUWhAURVU5tG8Xzho07ckBiAjeewBKw8dZAYHFCV1STmICcP/hc6IoRoywmA0Ur8rR4lCSLkFIDEDbBo8mX/+F
            MF+CqnJg7wDGLPT2jwjT/xEhGdT21ceTb6g3W1hrFgzSRfeq7N+zs00E4LxP+FMLf3n4mKy0SJ++zhgjooC4TRvWYox8qVQ/
            07NxndSbLdNplbszgb6qfERhunjiksq5q2MoWqg3WrdU2YwQoct/JsAi/OjOBGeBZ05RwjB6P3blxsG5sEyXs3RSGEYEQRen
            RkbJBgG/AdKE8Oi0ShkjAAAAAElFTkSuQmCC
        }
        view {
            iVBORw0KGgoAAAANSUhEUgAAABAAAAAQCAYAAAAf8/9hAAACFUlEQVQ4y92ST2sTURTFz31vMpnGWEcnYJPWJKK21pIYXZQWtLa4
            EKFCuinBiIhrt65DCyL4EQQXLtpCV6F0J+LCfyiIlIBC2xTbxECtNs2YmMlk3nsuoouKX0DP8sD9wbnnAP+86E8jm8uDiCCENIjI
            BIErqWpE1ACg5mfTfwf8OuSeJ4YUMKVrfJSIYgpKI6JKy/XeA1jSOHullHLmZ6c6gGwuDykViBAWUt05GNBvDUStiKYxFMtVuG2B
            470mDhg6Vre+2V9rzSUCHiwsvClksyPgQxenQYxSjOjh6bh14+bVRPfJviN49m4Tu3YTbU/CbrgYOxfFtQun/I7rJbd3G5cHz0TK
            usZXeXI8k9A4ezyWio7enjxL8bCJ5ZdrKBS/gFEnodsWqDddXBk5geHBCAxdszYq1YmW67UYgMOMqKfHCiIY0KGUguN6+/9LHYgQ
            ErqPIxwKQvdxUwH9PDVxvdT25OZ6uTpc/e6Yx452w9A1FIo78DwBEIERYfx8DP1RC0/ebmDx6Ue7ajv3OaN7PHEpo0Jm4EOt3nr9
            qbLXWyjuxLr8Pm4G/ag1WmBEGIhZCJkBLL9Yk89XSiuNH+5dn8YfKcCh3xV2mqBDQspJzigT7NKTQipLSMUNne/Vm+31tifyjGhx
            a7tWiodNzM2k9w8pm8vDExKckSGkijCiPiL4hFQVxuizjzNbSIW5mTT+I/0E7z7d+etIs50AAAAASUVORK5CYII=
        }
        note {
            iVBORw0KGgoAAAANSUhEUgAAABAAAAAQCAYAAAAf8/9hAAACHElEQVQ4y4WTz05TURCHvznn9t6W0gKllZZyKZeKRRqjLtzIwo0b
            MWFhNP5ZqIkmkqau3Lv3BXyEvoAPYFwpCzWSuHBh0ChWIojRBGjh3nFRayBQPcls5pzz+30zmRF6nEYNgCIwCLwFuPH44DvT63N7
            G4DbwEMg2cvI9LqIeVSNNXccx86rMreH6t8CjRqIYFW5N1LMBcH0eFxE6qpk/0vQdQhDzsYTsetTMxMcqwYMZFKzGnFN9SDFYSX0
            iVAv+CPZ5ZVNXrxsUigVrBMzC0DQk6CrHEVcSPYnLgaVcV69+crTZ8sM57Nk80NVVe4ai+yl2EegyrAx3B8/WkymMykERYzixWOU
            p0u4nnMz3OHUAYJGDVRBI66mh1KzE1NjyF9V0AhGilnyY7kxhTrgdin2EkzYmCxMVnynrz+BKhgjWGtAwDqW8nSJRNK7FEWc6xrb
            Rg2sg4S7PMgVMldmTk9hHIMRYXAgTnkyw2ghjYiQ6IuztdmKb6z9yIjwBGgbgN02J13PuVU+XsL1XFBo74S8XmryfPETP3+1EBHE
            CEHFpz+dPB9FzHdKUFyglvdzfsE/AtJB1wjW17f4trZJeyfEmE5XBoZSBBXfs1bqqhQdhDkRLkdhxLul96jqn5YI1cClNWr5vtJk
            40vzb7613cJYc0ajsO4AJ4DFlY+r0ecPq/uHRACBjeb+vABiEATfAR4BiHTi0HnvuXLIb/7/nLXvDAfoAAAAAElFTkSuQmCC
        }
        count_none {
            iVBORw0KGgoAAAANSUhEUgAAABAAAAAQCAYAAAAf8/9hAAABZklEQVQ4y33TMUtXYRTH8c+9/k0C30GEa0OTDUESZg0WDUFD
            i7Y0GE5uvZDcxGqwllDEhigzAnfBMHIShKAX0KLl9drQOfZ0+duBBx6ee37f+5zfOU8FC6/WdGIAFY5xgl6cN2XSzNQ9VUdc
            xWr1jzqAJ+VBP/EtvME3fMcH3I9vmfcPoApqjZfYwEW8xhLOYyVAw5FbKWpLwHNM4Q7eFT9ocQUfsYaJhNRhWItJPMTdEA8G
            oI79FsZxAzNpdl3U8xjbeBs3OwrXm9ifw2esYjZvVkerYBSbzo7szCdcwlACsiUD3T6fEU1RmvQAvuDqf4Rp6DXs4SBNTA+e
            YSwgTdTcizWIXxjBNF6UJjYBWcY63uNyCNrw6AgXYj6+4mkAjnudaz6IPu+E2+sBuB4t3sVt/MzZSUBO1g/cxCPMxUzU2McT
            zOMwzlr+TmIJgcVYQ5F8UBh5KpaCPi8yp7PtCPN5489z/g2Oe18/dpxIaQAAAABJRU5ErkJggg==
        }
        count_one {
            iVBORw0KGgoAAAANSUhEUgAAABAAAAAQCAYAAAAf8/9hAAABFklEQVQ4y6XTsS4EURQG4G9mVkHBC2j0W0u8gneQSPQKopKo
            RIViuy2EUqP1BgoKHY2go95SYnYUzuXu7EiEk0xm5j/n/+9/zr2Xf0aR/6yebLZzZXyP0aTE5cZgWqBFrtqkwOq2SNFBLoM8
            hz56uMMoy32JlCYjFazhAde4wjO2IjfRdq/D4jpOw35qYQFH4Wo/byc5KAKYxV5gdeBFJrSDxciVuUB697EUhC5381jON6A9
            g0Rq/BxVl0Ca7D1eA68z0jiwN9zmnCTQhPIIxxmxjqeJFYd49H1OJlpIQzvELt6jsAx8gO2sdmobk5MSBzjDCmZwg6eOmX0C
            +dkOaxVecIHzIFddw/3NZSpCdJwnW4v+PT4A5RpLWy3mj3MAAAAASUVORK5CYII=
        }
        count_many {
            iVBORw0KGgoAAAANSUhEUgAAABAAAAAQCAYAAAAf8/9hAAAB6ElEQVQ4y3WSvWtUQRTFf3dm3m4UAitEjR+Fi4Ug+gdYSrAJ
            WolVKrW38g/QRlC2CrYJFqbRSpQIEj8aCcFoAhGLJYgL6opxZXdjvva9edciM/G5xgvDDHc455577pXa7BSFEMCGOwd88fP6
            mTH6w+zyzoA0gE0gA6Cv2HbFkDSh4kHgAnAIeGOMmZl8+dCfOHLcrPe2VEDZPgBMXx1HarNTEXwOeABUQnWrqs9LLrmoaGdP
            aUAevX0Ri+205gL4AHA/gFMFMSKpM3aks/Hr7pOFV7XhylAZWAI2Cop3+h4NJKlCYkVc5n2y9Lnu5z++Hxsa3LeYeT8H1IEr
            AWyiAgIYQAzg85x3jQ+0Vts2cU4FyYOZh4EJYBi4BdioYBFAVdVZp59+fKG12mYgKSOIFKYRTbwJnAR8JHgGzIhIkvos/979
            ibMW1bx/ajYY6IDzFJjJfHbJiNzLfLbey1IV5M+8do9qJFBAuptr3UareTlXrWa5XxYRotP/ia/FKWhl76Bupb3S6/pCS1Uf
            h3zaB4pmAjz9a5Wr+49qs72SNjsrCHIbWAbKoecs3Bp8GAfmAbOz56MT1+IzLskxYBI4G9sENoE7wI2o3PFvRJkNYAQ4DZwC
            1oA54FtxE6WILKgottdvpA05BfgNmi2+4UAbO0cAAAAASUVORK5CYII=
        }
        closed {
            iVBORw0KGgoAAAANSUhEUgAAABAAAAAQCAYAAAAf8/9hAAABC0lEQVQ4y53Tvy6EURAF8N/37XoDjyEaUeh0EpEgPINCVBIt
            2Y5mm41mSyGiEM8gETQqryGhUlmrMHdz9/sjmO7OnXPmnJl7C1ns7B9pi2G/15jvtIDLuBunxMLSsqeH2xpBUU00EI1zoqqS
            ogIs8YlFrOEE71m+RlJWBKTzCg5xhplQUFaaTRME6yiOx7jGFq7QDQU1y01DLKL4BnPYxHwQjlD8ZEEm9wPbOMc6Ln9jISfp
            hJKXyM1md5PotqxPKDjFLh6xkSwO+70JSZOCIroMAnyPVbxF/bjRQiS7AT7AHu58v4fXzFLj3lOkgmdcxAYSOK14al61vVbm
            8eennAPL6NoKrin4z3f+ApkfWLShK0jWAAAAAElFTkSuQmCC
        }
        opened {
            iVBORw0KGgoAAAANSUhEUgAAABAAAAAQCAYAAAAf8/9hAAAA+0lEQVQ4y83SLUsFQRTG8d/u3vsR/BTaxGCzWS6IKJgEk8Ui
            BqOyzVs2GAwbtSgGs1EQtQh+EbEJ4ssanNHBO5v1wDDhOf/nnDNn+OsoYHNnvzehbepevW1qxS+xDOcdXYYZ4COcnw4yXZTB
            oEvyihRsm/pLCGAZxDmMMMZzYhRjFw+4jEyZVIRF7OEYwwBX4T7EAVbT7qv72yuz8wuxyg2msYIZXOAVR9jCNTbwknvEIlQa
            4gzLOMEjtoP5CE9JrkEyXxdGecMazrEetLsErsKWev9BfNAhTjGFpRzcNnXvGovkjuvLrzGlMibfs6brjPCEQcZkIlL4f8Qn
            j6JNNi13vwoAAAAASUVORK5CYII=
        }
        checkOff {
            iVBORw0KGgoAAAANSUhEUgAAABAAAAAQCAYAAAAf8/9hAAABkklEQVQ4y81TMWuUURCc2befxyX35aIWMakiBFHuDwTsrS1M
            kcIqYOEPEBRsBdOKtorWVpZ22kkKE0SxkYOQVCGXQPy+XO69XYu7nEl4wpVOs6+YmeXN7nL91TsAIIZwAHj08D5yGHHP8fn8
            5Vs2GpccwJW9/YN7lmwBZMo6wIVkb3amfB9j2jE3Kkkn2a6q+tOtpcXObLu0lEzIi1pARPyoqtnd3n0Sgiwjoat7+4coCl3p
            3LjeWb17pw8gALBsf3eQjB8+fp778vX7Wl33n2qMEaoyX7amACDElFQo2Q+YGzQEtMsWAFzrnwygp5m4D19CgQiRd+DfpAGS
            wLgV/6HJgWeKTC7L438y8MlFfqaMpuB+moy5jdO+CDOHyDhEdwc0BAHBXn3cB4AYRIbzyYEOALGqjxWOXlEE8NmLNyhUF8xs
            4+bS4vzVyzMek+U2GUHEj35X/PbzVx1jWk5mWwoHU0q7InJ7Y/PHA3efA8erfO5KR5kdTjebr08Ggy0AVNXgI2K3bE09BiY7
            52ZoEID/ATCyn3drogovAAAAAElFTkSuQmCC
        }
        checkOn {
            iVBORw0KGgoAAAANSUhEUgAAABAAAAAQCAYAAAAf8/9hAAACAElEQVQ4y42TvWvTQRjHP8/dNZqXJjYl2qoQdVVUcBHcpIIU
            0cX6B1hpoQ4Fl2LnIoiIuAiK0qWii7iIgujSxbm+DDqlpbZBbGNN0zbmd3cOuZikzeAXHo47vi8PPPdIfnwOQKjDA8zfP0En
            BG4bX/LjcxKEWeAysB+wdIYCSsAL4DsgJogzwCxwFHCBuANaiXfOi4dJ4DRQaBCHgrgaDKLWklC/NiIbOb8lsA8YpiWpvxEC
            mNYSMA6M9ZjzxzMmHdfGOhChj06taiUoad6VEtY2LBMX+ng6doTBkxnWqxajRHYYeGBlPaJSdSglGC38LNcYG8hx/dxevi5v
            8f5zmeQuhXW+adAYgwCTF/sZOJamvGkpVSIunerh1pWDrFYirj0usLD6hy6jcL4eagBEwFpPb8owcjZHOq4ZvPONjarj4dU8
            zsPok3m+LG6STRki69vmivMQ08JSqcbE80WUwKPhQ0yPHiYeU9yYWeDtp9/0bhP/66Bhko5rnn1YIddtmBo6AMDd10WmZ+tv
            tXaxbzXwANZ5ct1dPHj3g3hM0ZPU3H5VJJvSWNeevN2gFM7IOs+ehObemyLOQyahwQd24ARdqXWML4FlYDegncdkEsb0JI3x
            HuObH0sHziYw0+hAgCXgDDBC/Zu60HLblobANWAa+Ni6TAIUgJvw3+ssgP8LHHjAfFVKc0IAAAAASUVORK5CYII=
        }
        up {
            iVBORw0KGgoAAAANSUhEUgAAAAwAAAAMCAYAAABWdVznAAAAwklEQVQoz43RMWoCYRAF4O/fXQgIYmMTm3gDm9gHKyu7NLmE
            eIl0KdLlApI7eIY0VrZ6gBxAcF2bifwuG/DB8D/mf28Y3iQZnpZbXTh8Tq48/SMu4j23TalDnFr8xlS4RYkGc7yGuMy3SNn0
            IgQj/GCAZ+zCVOe7pphcYo1H9PCNfohTl+EDLzhGTfDVTqOMVVZYBn+IqvGG9xhYVNEcYoYNTllSTfApxthX8fGLRQiumXfF
            3U4pv0GO5u8eVdY8uwMXPyYxHWQDDL0AAAAASUVORK5CYII=
        }
        down {
            iVBORw0KGgoAAAANSUhEUgAAAAwAAAAMCAYAAABWdVznAAAAvElEQVQoz5XQoW4CQRSF4W9nEaQGVc0j9HmwGJIaNGkfoaYW
            14fgJRAkWASkwVFT1VTAbs3dzWSyiE5ykzt3zrn/5FTT5d5/zijra1R3dC1upeHWNZ/vT2CIXsXwEW+xqSlILR6wwmmEhC+c
            8RKkOqPWWOOElLKNr/gIwW9UjQ0WHS0VX3zGDuOoI+bxlnJDG4MfzPCNa/SXIDVlSk3cD0GaYBuza5/SQHwpiN17k8fdxzdg
            Uop7wh2TUgx/ZB0z8r7ERt4AAAAASUVORK5CYII=
        }
        search {
            iVBORw0KGgoAAAANSUhEUgAAABAAAAAQCAYAAAAf8/9hAAABdElEQVQ4y4XTsUuWURQG8N/7vjqIWYLgFOLU4igFEkn9CYGW
            9jmGQlCB0SzS0BIO4uTQqEMQhU2RiqboUv9AizRlSy2Bkp+fg+fG7eMFL7w8vPee89zzPOfcYnp2TrYKVGiiFXtVYDMFLS/M
            /0so25ILnAT2ojsSm3lsfmlOkP4f4xt+xfcJN3FaE6+M29JawSJ68A77uIMdTAVJlVdRZhqfYhyrGMBdjOI6fmIZg0lO8qEM
            zTATJT/CETrQia94gi7cS5XnFcBlXMMufkfySeb858ChOg9Si45xJetImZ1fCjyqIyjxB1u4hRv4G+dpFh4Gbub707Nz/3Xh
            ZeB7jKEPV/EKz8PI9TZiZTYk22iEjDc4xAGe4Qf6sRSxrSSvI4jSkKxEzxth2DE+Yg2vcT9iG4FFIkgkFb5ncpKhLTwInAhs
            oFV92dsyPHI7BafSqszgIiN5G+2ejOo38jHW9jLrOnbqfLhehNQPhQtWzXMvggicAe82XbtqLLBhAAAAAElFTkSuQmCC
        }
        missing {
            iVBORw0KGgoAAAANSUhEUgAAABAAAAAQCAYAAAAf8/9hAAACIklEQVQ4y6WTzUtVURTFf/vce+770uegxytFBaNo0jhoYIOE
            pv0BRaGDSCN1ogODokFODfqCICQhImwiNAkaBY4SKd5ASCJCJAxRTN+X796zG7wPn5ZOWoNzBmevtddemyPPX80BCKDUcOPK
            Zf6FWm0dAqhMPnopIqLpllRfebfSC0QcDgWstf7i9Jt3c4vvPyKPp98iIn0tqcSHE9ljqoocIYAx4tbWN8zv7fx153TG38kX
            CQL//KmeTi5dOFcqlStW6tOIqRp1rtE+HgvC+YVc/NPnpd6dQmHGr/YTVKFUrthiuez7iTggRMUiqOIlEmCEqFACEdQpIiAI
            pikQBMVPplh99pCfL54QpFsI2lpZn5vlx+RdTGAbhDrH/zsmxQQxvj+YwEu3EWSOszw+REf/YJ1zhIAYomKBzpu38dJpVqYm
            URfRPTpB18gY4XYe4rF9OoaDmloNMMhkURfhdsvYTLb6VAuzGfsdOIeXSLI2+5rl8SG6RyewmSzf7gwTbm3SPnCr2kAPEwDw
            PPJLOTr6B+kaGUOAcGuTwtel6iKlYVqbBbR+RIU83WP3QIRwO486R/vAEKjiKiFO/LoBRcBXVUDFGCEeC0Jkb7fEY43NIAZX
            q/E846uqqFP8VDKBEcn9Wt9gfiEXqNO9YKXZX/XyPCMrq2tYa7+kWw1ydfg+rakkZ8+cvFYJw4tAeIC+b2ZVrLXewumerqfO
            aST/+53/ADQY3XExRGWeAAAAAElFTkSuQmCC
        }
    }
    variable files ;# the images of files, by name and whether they are drawn as disabled
    array set files {}
}

proc ::znbrowser::prepareImages {} {
    variable imageData
    foreach name [array names imageData] {image create photo znbrowser::image::$name}
    drawImages
}

# Draws them as large and as light as they are to be; whoever shows them shows that.
proc ::znbrowser::drawImages {} {
    variable imageData
    variable scale
    variable theme
    variable files
    foreach name [array names imageData] {
        set png [binary decode base64 $imageData($name)]
        if {$scale != 1 || $theme eq "dark"} {set png [pictureOf $png $scale [expr {$theme eq "dark"}]]}
        znbrowser::image::$name configure -format png -data $png
    }
    foreach file [array names files] {
        if {![string match znbrowser::* $files($file)]} {image delete $files($file)}
        unset files($file)
    }
}

# An image of a row, by the host's name for it; nothing when there is none of that name.
proc ::znbrowser::imageNamed {name} {
    variable imageData
    if {![info exists imageData($name)]} return
    return znbrowser::image::$name
}

proc ::znbrowser::checkImage {value} {
    return znbrowser::image::check[expr {$value eq "true" ? "On" : "Off"}]
}

# The image of a file, or one of the host's own, read once. A file that cannot be read looks so.
proc ::znbrowser::fileImage {file disabled} {
    variable files
    if {[info exists files($file,$disabled)]} {return $files($file,$disabled)}
    set image [imageNamed $file]
    if {$image eq "" && [catch {image create photo -file $file} image]} {
        set image znbrowser::image::missing
    } elseif {![string match znbrowser::* $image]} {
        set image [fitted $image]
    }
    return [set files($file,$disabled) [expr {$disabled ? [faded $image] : $image}]]
}

# An image that fits into a row: smaller where it must be, larger where all is.
proc ::znbrowser::fitted {image} {
    variable scale
    set height [image height $image]
    set room [expr {[rowHeight] - 2}]
    set zoom [expr {max(1, min(int($scale), $room / max(1, $height)))}]
    set less [expr {$height > $room + 2 ? int(ceil($height / double($room))) : 1}]
    if {$zoom == 1 && $less == 1} {return $image}
    set copy [image create photo]
    $copy copy $image -zoom $zoom -subsample $less
    image delete $image
    return $copy
}

# A copy in grey.
proc ::znbrowser::faded {image} {
    set grey [image create photo -palette 32]
    $grey copy $image
    return $grey
}
