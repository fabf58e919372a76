;; Supply-air duct network of an office floor (office-supply.dxf, made by
;; make_office_supply.py): trace the network from the duct leaving the air-handling unit,
;; then compute the pressure losses of its main (least favourable) path.
;; Run with: adscon --drawing examples/office-supply.dxf --cwd OUT --save OUT/traced.dxf
;;           examples/office-supply.lsp
;; The results file office-supply.ksl (named on the first duct) is written to OUT.

;; Drawing scale 1:100: the "?" marks at diffusers without a flow are 7 mm high on paper.
(setq _tzbl 100.0)

;; The start duct: the network line that begins at the air-handling unit, at (0,0).
(setq ducts (ssget "X" '((0 . "LINE") (8 . "SLJS-SUPPLY")))
      i 0
      start nil)
(while (and (not start) (< i (sslength ducts)))
  (setq e (ssname ducts i))
  (if (equal (cdr (assoc 10 (entget e))) '(0.0 0.0 0.0)) (setq start e))
  (setq i (1+ i)))

;; Trace: the pick lies near the unit's end of the start duct, so that end is upstream.
(host-entsel start '(500.0 0.0 0.0))
(host-dialog "mainduct_l" '((press "accept")))
(c:sssj)

;; Calculate: galvanised steel ducts (K = 0.15 mm), sea-level pressure, air at 16 °C.
(host-dialog "sljs_dlg" '((set "K" "0.15") (set "B" "101.325") (set "t" "16") (press "cal")))
(host-dialog "k_sljs_res" '((press "cancel")))
(c:zljs)
(princ)
