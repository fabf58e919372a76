;; The pipe tools on a small heating system.
;; Make the drawing, then run:
;;   examples/heating-system.py /tmp/heating.dxf
;;   build/adscon --drawing /tmp/heating.dxf --save /tmp/heating-out.dxf examples/heating-system.lsp

;; Trace the supply run from the boiler connection at the origin; lengths in metres.
(setq candidates (ssget "X" '((8 . "$R01-GS"))))
(setq reached (ssadd))
(setq first-pipe (ssname (ssget "X" '((0 . "POLYLINE") (8 . "$R01-GS"))) 0))
(setq run (gdsx 0 '(0.0 0.0 0.0) first-pipe candidates reached 1000.0))
(princ "\nPipes of the supply run (start end length diameter):")
(foreach entry (nth 2 run) (print entry))
(princ "\nRadiators on it (mark block point rotation scales diameter):")
(foreach entry (nth 3 run) (print entry))

;; Mark line pipes that collide within 50 mm, then cut the lower of every two crossing
;; polyline pipes with a 100 mm gap each side.
(pzjc 0 50.0)
(pzjc 1 100.0)

;; Remove the part of the supply main between x = 1000 and x = 2500.
(break_p '(1000.0 0.0 0.0) '(2500.0 0.0 0.0) "$R01-GS")
(princ)
